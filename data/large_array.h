#pragma once
// An exact-size array of plain values, left uninitialised for the code that
// fills it at once: the per-word arrays of a list of millions of words. Large
// ones are aligned for huge pages and advised to use them, so that filling
// them costs a few page faults instead of thousands.

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace lettriner {

namespace large_array_detail {
inline constexpr std::size_t kHugePage = std::size_t{2} << 20;
// Asks the system to back [data, data + bytes) with huge pages; a hint only.
void adviseHugePages(void* data, std::size_t bytes) noexcept;
struct Free {
    void operator()(void* data) const noexcept { std::free(data); }
};
} // namespace large_array_detail

template <class T> class LargeArray {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    LargeArray() = default;
    explicit LargeArray(std::size_t size) : size_(size) {
        using namespace large_array_detail;
        if (size > SIZE_MAX / sizeof(T))
            throw std::bad_alloc();
        const std::size_t bytes = size * sizeof(T);
        void* data = nullptr;
        if (bytes >= kHugePage) {
            const std::size_t rounded = (bytes + kHugePage - 1) / kHugePage * kHugePage;
            data = std::aligned_alloc(kHugePage, rounded);
            if (data != nullptr)
                adviseHugePages(data, rounded);
        } else {
            data = std::malloc(bytes == 0 ? 1 : bytes);
        }
        if (data == nullptr)
            throw std::bad_alloc();
        data_.reset(static_cast<T*>(data));
    }

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] T* data() { return data_.get(); }
    [[nodiscard]] const T* data() const { return data_.get(); }
    T& operator[](std::size_t i) { return data_.get()[i]; }
    const T& operator[](std::size_t i) const { return data_.get()[i]; }

private:
    std::unique_ptr<T, large_array_detail::Free> data_;
    std::size_t size_ = 0;
};

} // namespace lettriner
