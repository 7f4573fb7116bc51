#pragma once

#include <QQuickImageProvider>
#include <memory>

#include "ui/symbol_source.h"

namespace velmora {

/// Serves the symbols to QML as `image://symbol/<name>/<weight>/<rrggbbaa>`, with the weight
/// `regular` or `light` and the tint as eight hexadecimal digits.
class SymbolImageProvider : public QQuickImageProvider {
  public:
    explicit SymbolImageProvider(std::unique_ptr<SymbolSource> source);

    /// The symbol at the requested size, which the toolkit gives in device pixels; a size or one of
    /// its sides that is left out is 16, or the other side. A null image when the id does not have
    /// the form above or the source does not know the name.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

  private:
    std::unique_ptr<SymbolSource> source_;
};

}  // namespace velmora
