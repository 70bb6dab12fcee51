#include "fileio/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace lapdesk {

namespace {

// Built by appending: GCC 12 gives a false -Wrestrict on "'" + text at -O3.
std::string Quoted(const std::filesystem::path& path) {
    std::string quoted(1, '\'');
    quoted.append(path.string()).push_back('\'');
    return quoted;
}

std::string SystemReason(const std::string& what, const std::filesystem::path& path) {
    return what + " " + Quoted(path) + ": " + std::strerror(errno);
}

struct BytesResult {
    bool ok = false;
    std::string bytes;
    std::string reason;
};

BytesResult ReadBytes(const std::filesystem::path& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) return {false, {}, SystemReason("cannot open", path)};
    BytesResult result{true, {}, {}};
    char buffer[65536];
    std::size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0)
        result.bytes.append(buffer, n);
    if (std::ferror(file)) result = {false, {}, SystemReason("cannot read", path)};
    std::fclose(file);
    return result;
}

// Creates a new file next to the target under a name no one else uses.
int CreateTemporary(const std::filesystem::path& target, std::filesystem::path& temporary) {
    static unsigned counter = 0;
    const std::filesystem::path folder =
        target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name(1, '.');
        name.append(target.filename().string()).append(".tmp").append(std::to_string(getpid()));
        name.append("-").append(std::to_string(counter++));
        temporary = folder / name;
        const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    return -1;
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// Fills the temporary file and closes it; on failure the reason is set.
bool FillTemporary(int fd, const std::filesystem::path& target, std::string_view bytes,
                   std::string& reason) {
    struct stat existing {};
    if (stat(target.c_str(), &existing) == 0 && S_ISREG(existing.st_mode)) {
        fchmod(fd, existing.st_mode & 07777);  // best effort: no save fails over its mode
    }
    bool ok = WriteAll(fd, bytes) && fsync(fd) == 0;
    if (!ok) reason = SystemReason("cannot write", target);
    if (close(fd) != 0 && ok) {
        ok = false;
        reason = SystemReason("cannot write", target);
    }
    return ok;
}

}  // namespace

TextResult ReadText(const std::filesystem::path& path) {
    BytesResult read = ReadBytes(path);
    if (!read.ok) return {false, {}, std::move(read.reason)};
    TextResult text = DecodeText(read.bytes);
    if (!text.ok) text.reason = Quoted(path) + ": " + text.reason;
    return text;
}

LinesResult ReadTextLines(const std::filesystem::path& path) {
    TextResult text = ReadText(path);
    if (!text.ok) return {false, {}, std::move(text.reason)};
    return {true, SplitLines(text.text), {}};
}

WriteResult WriteBytesAtomic(const std::filesystem::path& path, std::string_view bytes) {
    std::filesystem::path temporary;
    const int fd = CreateTemporary(path, temporary);
    if (fd < 0) return {false, SystemReason("cannot create a temporary file for", path)};
    std::string reason;
    if (!FillTemporary(fd, path, bytes, reason)) {
        unlink(temporary.c_str());
        return {false, reason};
    }
    if (std::rename(temporary.c_str(), path.c_str()) != 0) {
        reason = SystemReason("cannot replace", path);
        unlink(temporary.c_str());
        return {false, reason};
    }
    return {true, {}};
}

WriteResult WriteTextAtomic(const std::filesystem::path& path, std::string_view utf8Text) {
    const TextResult encoded = Utf8ToCp932(utf8Text);
    if (!encoded.ok) return {false, "cannot save " + Quoted(path) + ": " + encoded.reason};
    return WriteBytesAtomic(path, encoded.text);
}

}  // namespace lapdesk
