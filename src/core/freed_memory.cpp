#include "core/freed_memory.h"

#ifdef VELMORA_MIMALLOC
#include <mimalloc.h>
#endif

namespace velmora {

#ifdef VELMORA_MIMALLOC

namespace {

#if MI_MALLOC_VERSION < 210
constexpr mi_option_t returnDelay = mi_option_decommit_delay;
#else
constexpr mi_option_t returnDelay = mi_option_purge_delay;
#endif

}  // namespace

FreedMemoryReturns::FreedMemoryReturns() : delayBefore_(mi_option_get(returnDelay)) {
    mi_option_set(returnDelay, 0);
}

FreedMemoryReturns::~FreedMemoryReturns() {
    mi_collect(true);
    mi_option_set(returnDelay, delayBefore_);
}

#else

FreedMemoryReturns::FreedMemoryReturns() = default;
FreedMemoryReturns::~FreedMemoryReturns() = default;

#endif

}  // namespace velmora
