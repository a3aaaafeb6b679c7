// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/file_contents.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
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

std::string readUpTo(int fd, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t got = 0;
    while (got < size) {
        const ssize_t n = ::read(fd, bytes.data() + got, size - got);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        got += static_cast<std::size_t>(n);
    }
    bytes.resize(got);
    return bytes;
}

} // namespace

FileContents::FileContents(FileContents&& other) noexcept
    : mapped_(other.mapped_), mappedLength_(other.mappedLength_), owned_(std::move(other.owned_)) {
    other.mapped_ = nullptr;
    other.mappedLength_ = 0;
}

FileContents& FileContents::operator=(FileContents&& other) noexcept {
    if (this != &other) {
        release();
        mapped_ = other.mapped_;
        mappedLength_ = other.mappedLength_;
        owned_ = std::move(other.owned_);
        other.mapped_ = nullptr;
        other.mappedLength_ = 0;
    }
    return *this;
}

FileContents::~FileContents() {
    release();
}

void FileContents::release() noexcept {
    if (mapped_ != nullptr)
        ::munmap(const_cast<char*>(mapped_), mappedLength_);
    mapped_ = nullptr;
    mappedLength_ = 0;
}

FileContents readFileContents(const fs::path& path, std::uintmax_t largest) {
    try {
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        if (status.type() == fs::file_type::not_found) {
            // The program has always left an absent file behind, empty. "x"
            // opens with O_CREAT | O_EXCL, which never follows a symbolic
            // link and never empties a file that appeared in the meantime.
            if (std::FILE* created = std::fopen(path.c_str(), "wbx"))
                std::fclose(created);
            return {};
        }
        // Only regular files are read: a FIFO or device would block or never
        // end. O_NONBLOCK keeps the open itself from waiting on a FIFO that
        // took the file's place after the check; fstat then decides.
        const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
        struct stat facts {};
        if (file.get() < 0 || ::fstat(file.get(), &facts) != 0 || !S_ISREG(facts.st_mode) ||
            facts.st_size <= 0)
            return {};
        const auto size =
            static_cast<std::size_t>(std::min(static_cast<std::uintmax_t>(facts.st_size), largest));
        if (size == 0)
            return {};
        // MAP_POPULATE maps every page now, in one call, instead of one
        // page fault at a time while the list is cut into words.
        void* mapped = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file.get(), 0);
        if (mapped != MAP_FAILED)
            return FileContents(static_cast<const char*>(mapped), size);
        return FileContents(readUpTo(file.get(), size));
    } catch (const std::bad_alloc&) {
        return {};
    } catch (const fs::filesystem_error&) {
        return {};
    }
}

} // namespace lettriner
