#pragma once

#include <QString>

namespace velmora {

/// The application's folder under the user's Application Support directory. The first use moves the
/// folder of an older version into place, creates what is missing and narrows the permissions of an
/// existing folder to its owner; failures show up as failing reads and writes later.
class SupportFolder {
  public:
    explicit SupportFolder(QString applicationSupport);

    /// The folder that holds the settings.
    [[nodiscard]] const QString& path();

    /// The folder "logs" in it.
    [[nodiscard]] const QString& logs();

  private:
    QString applicationSupport_;
    QString path_;
    QString logs_;
};

}  // namespace velmora
