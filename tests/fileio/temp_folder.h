// A fresh folder under the system's temporary directory, removed afterwards.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lapdesk::testing_support {

class TempFolder {
  public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "lapdesk-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~TempFolder() { std::filesystem::remove_all(path_); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace lapdesk::testing_support
