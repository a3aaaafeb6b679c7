#pragma once
// A fresh folder per test, removed afterwards, with helpers to write and read
// raw bytes, since the program's files are Windows-1252 with CR LF.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace lettriner::testing {

class TempFolder {
public:
    TempFolder() {
        std::random_device seed;
        path_ = std::filesystem::temp_directory_path() /
                ("lettriner-test-" + std::to_string(seed()) + std::to_string(seed()));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
        return path_ / name;
    }

    void write(std::string_view name, std::string_view bytes) const {
        std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    [[nodiscard]] bool exists(std::string_view name) const {
        return std::filesystem::exists(path_ / name);
    }

private:
    std::filesystem::path path_;
};

// Changes the current folder for the lifetime of the object.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::filesystem::path& folder)
        : previous_(std::filesystem::current_path()) {
        std::filesystem::current_path(folder);
    }
    ~CurrentFolder() {
        std::error_code ignored;
        std::filesystem::current_path(previous_, ignored);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    std::filesystem::path previous_;
};

} // namespace lettriner::testing
