#include "core/fresh_id.h"

#include <QRandomGenerator64>
#include <QtEndian>
#include <array>

namespace velmora {

QUuid freshID() {
    thread_local QRandomGenerator64 generator = QRandomGenerator64::securelySeeded();
    constexpr quint64 versionMask = 0xf000;
    constexpr quint64 version4 = 0x4000;
    constexpr quint64 variantMask = quint64{0xc0} << 56;
    constexpr quint64 variant = quint64{0x80} << 56;
    const std::array words{
        qToBigEndian((generator.generate() & ~versionMask) | version4),
        qToBigEndian((generator.generate() & ~variantMask) | variant),
    };
    return QUuid::fromRfc4122(
        QByteArrayView(reinterpret_cast<const char*>(words.data()), sizeof words));
}

}  // namespace velmora
