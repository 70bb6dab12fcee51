#include "fileio/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace lapdesk {

namespace {

// Why a file could not be written, by the system's error number.
std::string WriteFailure(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return "ディスクの空きが足りません";
        case EACCES:
        case EPERM:
            return "書き込む権限がありません";
        case EROFS:
            return "読み取り専用の場所です";
        case ENOENT:
        case ENOTDIR:
            return "フォルダがありません";
        case EISDIR:
            return "同じ名前のフォルダがあります";
        default:
            return "システムのエラー番号 " + std::to_string(error);
    }
}

// "'path' に書き込めません：ディスクの空きが足りません", from errno.
std::string SystemReason(std::string_view what, const std::filesystem::path& path) {
    return QuotedPath(path) + " " + std::string(what) + "：" + WriteFailure(errno);
}

// Why a file could not be opened or read, by the system's error number.
std::string ReadFailure(int error, bool opening) {
    switch (error) {
        case ENOENT:
            return "ファイルがありません";
        case EACCES:
        case EPERM:
            return "ファイルを読む権限がありません";
        case EISDIR:
            return "フォルダなので読めません（ファイルを選んでください）";
        default:
            return std::string(opening ? "ファイルを開けません" : "ファイルを読めません") +
                   "（システムのエラー番号 " + std::to_string(error) + "）";
    }
}

struct BytesResult {
    bool ok = false;
    std::string bytes;
    std::string reason;
};

BytesResult ReadBytes(const std::filesystem::path& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) return {false, {}, QuotedPath(path) + "：" + ReadFailure(errno, true)};
    BytesResult result{true, {}, {}};
    char buffer[65536];
    std::size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0)
        result.bytes.append(buffer, n);
    if (std::ferror(file))
        result = {false, {}, QuotedPath(path) + "：" + ReadFailure(errno, false)};
    std::fclose(file);
    return result;
}

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// Why the bytes are neither UTF-8 nor cp932, by the first line that fails.
// Line breaks are single bytes that no cp932 character contains, so the raw
// bytes split into the same lines as the text.
std::string DecodeFailure(std::string_view bytes) {
    const bool marked = bytes.starts_with(kUtf8Mark);
    if (marked) bytes.remove_prefix(kUtf8Mark.size());
    const std::vector<std::string> lines = SplitLines(bytes);
    const auto lineName = [](std::size_t i) { return std::to_string(i + 1) + " 行目"; };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (marked && !IsValidUtf8(lines[i])) {
            return "UTF-8 の印（BOM）で始まるのに、" + lineName(i) + "が UTF-8 として読めません";
        }
        if (!marked && !IsValidUtf8(lines[i]) && !Cp932ToUtf8(lines[i]).ok) {
            return lineName(i) + "に cp932 でも UTF-8 でもない文字があります";
        }
    }
    if (!Cp932ToUtf8("A").ok) return "この環境には cp932 の文字変換がありません";
    // Every line reads in one of the two codes, but not all in the same.
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!Cp932ToUtf8(lines[i]).ok) {
            return lineName(i) +
                   "は UTF-8 ですが、ほかの行は cp932 "
                   "なので読めません（文字コードが混ざっています）";
        }
    }
    return "cp932 でも UTF-8 でもない文字があります";
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
    if (!ok) reason = SystemReason("に書き込めません", target);
    if (close(fd) != 0 && ok) {
        ok = false;
        reason = SystemReason("に書き込めません", target);
    }
    return ok;
}

}  // namespace

// Built by appending: GCC 12 gives a false -Wrestrict on "'" + text at -O3.
std::string QuotedPath(const std::filesystem::path& path) {
    std::string quoted(1, '\'');
    quoted.append(path.string()).push_back('\'');
    return quoted;
}

TextResult ReadText(const std::filesystem::path& path) {
    BytesResult read = ReadBytes(path);
    if (!read.ok) return {false, {}, std::move(read.reason)};
    TextResult text = DecodeText(read.bytes);
    if (!text.ok) text.reason = QuotedPath(path) + "：" + DecodeFailure(read.bytes);
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
    if (fd < 0) return {false, SystemReason("を保存する一時ファイルを作れません", path)};
    std::string reason;
    if (!FillTemporary(fd, path, bytes, reason)) {
        unlink(temporary.c_str());
        return {false, reason};
    }
    if (std::rename(temporary.c_str(), path.c_str()) != 0) {
        reason = SystemReason("を置き換えられません", path);
        unlink(temporary.c_str());
        return {false, reason};
    }
    return {true, {}};
}

WriteResult WriteTextAtomic(const std::filesystem::path& path, std::string_view utf8Text) {
    const TextResult encoded = Utf8ToCp932(utf8Text);
    if (!encoded.ok) return {false, QuotedPath(path) + " を保存できません：" + encoded.reason};
    return WriteBytesAtomic(path, encoded.text);
}

}  // namespace lapdesk
