// What libFuzzer calls; the reader is named by VELMORA_READER.

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "fuzz/readers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const velmora::Reader reader = [] {
        const char* name = std::getenv("VELMORA_READER");
        const auto found = velmora::readers().find(name == nullptr ? "" : name);
        if (found == velmora::readers().end()) {
            std::fputs("VELMORA_READER names one of the folders of kept inputs.\n", stderr);
            std::exit(2);
        }
        return found->second;
    }();
    reader(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
