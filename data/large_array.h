// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An exact-size array of plain values, left uninitialised for the code that
// fills it at once: the per-word arrays of a list of up to millions of words.
// Its pages are mapped in one go instead of one page fault at a time, and
// large ones are aligned for huge pages and advised to use them.

#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
#include <utility>

namespace lettriner {

namespace large_array_detail {
// Memory for `bytes` bytes (at least one), its pages present unless
// `touchFirst` (then the first write brings each in); throws std::bad_alloc.
// `mapped` receives what release() needs.
[[nodiscard]] void* allocate(std::size_t bytes, std::size_t& mapped, bool touchFirst = false);
void release(void* data, std::size_t mapped) noexcept;
} // namespace large_array_detail

// How the pages of a large array come in: all at once (for arrays filled in
// a loop, where a fault per page would cost more), or on the first write (for
// a buffer that a read() fills: the kernel brings the pages in as it copies,
// and bringing them in before would only zero them first).
enum class Pages { Present, OnFirstWrite };

template <class T> class LargeArray {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    LargeArray() = default;
    explicit LargeArray(std::size_t size, Pages pages = Pages::Present) : size_(size) {
        if (size > SIZE_MAX / sizeof(T))
            throw std::bad_alloc();
        data_ = static_cast<T*>(
            large_array_detail::allocate(size * sizeof(T), mapped_, pages == Pages::OnFirstWrite));
    }
    LargeArray(LargeArray&& other) noexcept
        : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)),
          mapped_(std::exchange(other.mapped_, 0)) {}
    LargeArray& operator=(LargeArray&& other) noexcept {
        if (this != &other) {
            large_array_detail::release(data_, mapped_);
            data_ = std::exchange(other.data_, nullptr);
            size_ = std::exchange(other.size_, 0);
            mapped_ = std::exchange(other.mapped_, 0);
        }
        return *this;
    }
    LargeArray(const LargeArray&) = delete;
    LargeArray& operator=(const LargeArray&) = delete;
    ~LargeArray() { large_array_detail::release(data_, mapped_); }

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] T* data() { return data_; }
    [[nodiscard]] const T* data() const { return data_; }
    T& operator[](std::size_t i) { return data_[i]; }
    const T& operator[](std::size_t i) const { return data_[i]; }

private:
    T* data_ = nullptr;
    std::size_t size_ = 0;
    std::size_t mapped_ = 0;
};

} // namespace lettriner
