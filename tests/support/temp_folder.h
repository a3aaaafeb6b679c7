// SPDX-License-Identifier: GPL-3.0-or-later
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

namespace fs = std::filesystem;

class TempFolder {
public:
    TempFolder()
        : path_(fs::temp_directory_path() / ("lettriner-" + std::to_string(std::random_device{}()) +
                                             std::to_string(std::random_device{}()))) {
        fs::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
        fs::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const fs::path& path() const { return path_; }
    [[nodiscard]] fs::path operator/(std::string_view name) const { return path_ / name; }
    void write(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

private:
    fs::path path_;
};

// Changes the current folder for the lifetime of the object.
class CurrentFolder {
public:
    explicit CurrentFolder(const fs::path& folder) : previous_(fs::current_path()) {
        fs::current_path(folder);
    }
    ~CurrentFolder() {
        std::error_code ignored;
        fs::current_path(previous_, ignored);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    fs::path previous_;
};

} // namespace lettriner::testing
