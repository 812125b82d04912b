#pragma once

#include "text/Text.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace ondrilo {

/// A folder of its own for one test, removed with it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        path = std::filesystem::temp_directory_path() / ("ondrilo-test-" + std::to_string(random()));
        std::filesystem::create_directories(path);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path; }
    std::filesystem::path Write(const std::string& name, TextView bytes) const {
        std::filesystem::create_directories((path / name).parent_path());
        std::ofstream(path / name, std::ios::binary) << bytes;
        return path / name;
    }
    [[nodiscard]] Text Read(const std::string& name) const {
        std::ifstream file(path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path path;
};

} // namespace ondrilo
