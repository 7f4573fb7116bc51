#pragma once

#include <QQuickImageProvider>
#include <memory>

#include "ui/look/native_look.h"

namespace velmora {

/// Serves the symbols to QML as `image://symbol/<name>/<weight>/<rrggbbaa>`, with the weight
/// `regular` or `light` and the tint as eight hexadecimal digits, and the system's pictures as
/// `image://symbol/applicationIcon` and `image://symbol/arrowPointer`.
class SymbolImageProvider : public QQuickImageProvider {
  public:
    explicit SymbolImageProvider(std::unique_ptr<NativeLook> look);

    /// The symbol or picture at the requested size, which the toolkit gives in device pixels; a
    /// size or one of its sides that is left out is 16, or the other side. A null image when the id
    /// does not have a form above or the look does not know the name.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

  private:
    [[nodiscard]] QImage image(const QString& id, QSize pixels) const;

    std::unique_ptr<NativeLook> look_;
};

}  // namespace velmora
