#pragma once

#include <QLocale>

namespace velmora {

/// The language that the interface speaks as long as this lives.
class Language {
  public:
    explicit Language(const QString& name) { QLocale::setDefault(QLocale(name)); }
    ~Language() { QLocale::setDefault(before_); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

  private:
    const QLocale before_;
};

}  // namespace velmora
