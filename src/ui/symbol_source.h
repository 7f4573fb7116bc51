#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

namespace velmora {

enum class SymbolWeight { regular, light };

/// Where the views get their symbols from: drawings of ours, or those of the platform. May be asked
/// from any thread.
class SymbolSource {
  public:
    virtual ~SymbolSource() = default;

    /// The symbol `name`, as large as fits into `pixels` (device pixels) with its aspect kept,
    /// centred on a transparent image of exactly that size and drawn in `tint` alone. A null image
    /// when the name is unknown or the size is empty.
    [[nodiscard]] virtual QImage symbol(const QString& name, QSize pixels, const QColor& tint,
                                        SymbolWeight weight) const = 0;
};

}  // namespace velmora
