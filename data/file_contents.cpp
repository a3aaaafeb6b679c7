// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/file_contents.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lettriner {

namespace fs = std::filesystem;

namespace {

// Closes the descriptor on every way out.
class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    [[nodiscard]] int get() const { return fd_; }

private:
    int fd_;
};

// Reads up to `size` bytes into `bytes`; a file shortened meanwhile gives fewer.
std::size_t readUpTo(int fd, char* bytes, std::size_t size) {
    std::size_t got = 0;
    while (got < size) {
        const ssize_t n = ::read(fd, bytes + got, size - got);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        got += static_cast<std::size_t>(n);
    }
    return got;
}

// Opens a regular file for reading. O_NONBLOCK keeps the open itself from
// waiting on a FIFO that took the file's place after a check; fstat then
// decides: only regular files are read, a FIFO or device would block or
// never end.
int openRegular(const fs::path& path, struct stat& facts) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd >= 0 && (::fstat(fd, &facts) != 0 || !S_ISREG(facts.st_mode))) {
        ::close(fd);
        return -1;
    }
    return fd;
}

} // namespace

FileContents::FileContents(std::string_view bytes) : buffer_(bytes.size()), length_(bytes.size()) {
    std::copy(bytes.begin(), bytes.end(), buffer_.data());
}

FileContents readFileContents(const fs::path& path, std::uintmax_t largest, WhenAbsent absent) {
    try {
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        if (status.type() == fs::file_type::not_found) {
            // "x" opens with O_CREAT | O_EXCL, which never follows a symbolic
            // link and never empties a file that appeared in the meantime.
            if (absent == WhenAbsent::CreateEmpty) {
                if (std::FILE* created = std::fopen(path.c_str(), "wbx"))
                    std::fclose(created);
            }
            return {};
        }
        struct stat facts {};
        const Descriptor file(openRegular(path, facts));
        if (file.get() < 0 || facts.st_size <= 0)
            return {};
        const auto size =
            static_cast<std::size_t>(std::min(static_cast<std::uintmax_t>(facts.st_size), largest));
        if (size == 0)
            return {};
        // Huge pages where the system has them, brought in by the read itself.
        LargeArray<char> buffer(size, Pages::OnFirstWrite);
        const std::size_t got = readUpTo(file.get(), buffer.data(), size);
        return FileContents(std::move(buffer), got);
    } catch (const std::bad_alloc&) {
        return {};
    } catch (const fs::filesystem_error&) {
        return {};
    }
}

FileState fileState(const fs::path& path) {
    std::error_code error;
    if (fs::status(path, error).type() == fs::file_type::not_found)
        return FileState::Absent;
    struct stat facts {};
    const Descriptor file(openRegular(path, facts));
    if (file.get() < 0)
        return FileState::Unreadable;
    if (facts.st_size <= 0)
        return FileState::Empty;
    // Readable by the permissions is not yet readable: try one byte.
    char first = 0;
    return ::read(file.get(), &first, 1) == 1 ? FileState::Readable : FileState::Unreadable;
}

} // namespace lettriner
