#pragma once

#include <QSet>
#include <QString>

namespace velmora {

/// Keeps one copy of each text that comes again and again, such as the companies of a long list.
class SharedTexts {
  public:
    /// The first text handed in that equals `text`.
    [[nodiscard]] QString shared(const QString& text) { return *texts_.insert(text); }

  private:
    QSet<QString> texts_;
};

}  // namespace velmora
