#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "core/moment.h"

namespace velmora {

/// The course of the animation that shows how Full Disk Access is turned on: a loop of 7 seconds
/// in which a pointer glides to a switch and turns it on. All that is drawn follows from `time`, or
/// is the end of it while it stands still.
class FullDiskAccessTimeline : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double time READ time WRITE setTime NOTIFY timeChanged)
    Q_PROPERTY(bool still READ still WRITE setStill NOTIFY timeChanged)
    Q_PROPERTY(double opacity READ opacity NOTIFY timeChanged)
    Q_PROPERTY(double pointerX READ pointerX NOTIFY timeChanged)
    Q_PROPERTY(double pointerY READ pointerY NOTIFY timeChanged)
    Q_PROPERTY(double pointerScale READ pointerScale NOTIFY timeChanged)
    Q_PROPERTY(double switchedOn READ switchedOn NOTIFY timeChanged)

  public:
    using QObject::QObject;

    /// Seconds into the loop, from 0 to below 7.
    [[nodiscard]] static double phase(Moment moment);

    /// What was set, or while it stands still a moment at which the switch is on.
    [[nodiscard]] double time() const;
    void setTime(double time);
    [[nodiscard]] bool still() const { return still_; }
    void setStill(bool still);

    /// Of the whole drawing, 0 to 1.
    [[nodiscard]] double opacity() const;
    /// The tip of the pointer, in points of the drawing from its top left.
    [[nodiscard]] double pointerX() const;
    [[nodiscard]] double pointerY() const;
    /// Smaller while the pointer presses.
    [[nodiscard]] double pointerScale() const;
    /// How far the switch is on, 0 to 1.
    [[nodiscard]] double switchedOn() const;

  Q_SIGNALS:
    void timeChanged();

  private:
    double time_ = 0;
    bool still_ = false;
};

}  // namespace velmora
