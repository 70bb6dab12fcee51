// Reading and writing text files in the system's code page. Failures come back
// as a flag with a reason; nothing here throws.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "fileio/text_codec.h"

namespace lapdesk {

struct LinesResult {
    bool ok = false;
    std::vector<std::string> lines;
    std::string reason;
};

struct WriteResult {
    bool ok = false;
    std::string reason;
};

// The path between single quotes, as reasons name a file.
std::string QuotedPath(const std::filesystem::path& path);

// The whole file as UTF-8, line breaks as they stand; cp932 or UTF-8 input.
// A failure's reason names the file and says, in words, what kept it from
// being read: the system's error, or the first line in neither code.
TextResult ReadText(const std::filesystem::path& path);
// The file as UTF-8 lines (see SplitLines).
LinesResult ReadTextLines(const std::filesystem::path& path);

// Writes the bytes to a temporary file in the target's folder and renames it
// over the target only when all of it was written, so a failed save leaves
// the old file as it was. An existing target keeps its permission bits.
WriteResult WriteBytesAtomic(const std::filesystem::path& path, std::string_view bytes);
// The UTF-8 text converted to cp932 (line breaks as given), written as above.
// A character cp932 cannot hold fails the save before anything is touched.
WriteResult WriteTextAtomic(const std::filesystem::path& path, std::string_view utf8Text);

}  // namespace lapdesk
