// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/large_array.h"

#include <cstdlib>
#include <sys/mman.h>

namespace lettriner::large_array_detail {

namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;
// Below this the allocator's own pools do better than a mapping of its own.
constexpr std::size_t kSmallest = std::size_t{64} << 10;

// A mapping of `bytes` starting on a huge-page boundary: map more, then cut
// off the ends.
void* alignedMapping(std::size_t bytes) {
    const std::size_t padded = bytes + kHugePage;
    void* raw = ::mmap(nullptr, padded, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (raw == MAP_FAILED)
        return nullptr;
    const auto start = reinterpret_cast<std::uintptr_t>(raw);
    const std::uintptr_t aligned = (start + kHugePage - 1) / kHugePage * kHugePage;
    if (aligned > start)
        ::munmap(raw, aligned - start);
    const std::uintptr_t end = start + padded;
    if (end > aligned + bytes)
        ::munmap(reinterpret_cast<void*>(aligned + bytes), end - (aligned + bytes));
    return reinterpret_cast<void*>(aligned);
}

} // namespace

void* allocate(std::size_t bytes, std::size_t& mapped, bool touchFirst) {
    mapped = 0;
    if (bytes < kSmallest) {
        void* data = std::malloc(bytes == 0 ? 1 : bytes);
        if (data == nullptr)
            throw std::bad_alloc();
        return data;
    }
    if (bytes >= kHugePage) {
        // Whole small pages only: rounding up to a huge page would make the
        // tail resident for nothing, up to 2 MiB an array. The whole huge
        // pages inside still get huge pages; the tail gets small ones.
        constexpr std::size_t kPage = 4096;
        const std::size_t rounded = (bytes + kPage - 1) / kPage * kPage;
        if (void* data = alignedMapping(rounded)) {
            // Hints only: refused where huge pages are off or the kernel is older.
#ifdef MADV_HUGEPAGE
            ::madvise(data, rounded, MADV_HUGEPAGE);
#endif
#ifdef MADV_POPULATE_WRITE
            if (!touchFirst)
                ::madvise(data, rounded, MADV_POPULATE_WRITE);
#endif
            mapped = rounded;
            return data;
        }
        throw std::bad_alloc();
    }
    void* data = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | (touchFirst ? 0 : MAP_POPULATE), -1, 0);
    if (data == MAP_FAILED)
        throw std::bad_alloc();
    mapped = bytes;
    return data;
}

void release(void* data, std::size_t mapped) noexcept {
    if (data == nullptr)
        return;
    if (mapped == 0)
        std::free(data);
    else
        ::munmap(data, mapped);
}

} // namespace lettriner::large_array_detail
