#include "data/large_array.h"

#include <sys/mman.h>

namespace lettriner::large_array_detail {

void adviseHugePages(void* data, std::size_t bytes) noexcept {
#ifdef MADV_HUGEPAGE
    ::madvise(data, bytes, MADV_HUGEPAGE); // refused where huge pages are off: fine
#else
    (void)data;
    (void)bytes;
#endif
}

} // namespace lettriner::large_array_detail
