#pragma once

#include <QTest>

#include "app/app_home.h"
#include "ui/window_driver.h"

namespace velmora {

/// The main window over a home of its own, used by mouse and keyboard. Whatever the views complain
/// about fails the test.
class WindowTest : public AppHome {
  protected:
    ~WindowTest() override {
        if (driver) {
            EXPECT_TRUE(driver->complaints().isEmpty())
                << qPrintable(driver->complaints().join(u'\n'));
        }
    }

    WindowDriver& show() {
        driver = std::make_unique<WindowDriver>(model ? *model : open(), world.clock);
        return *driver;
    }

    /// All that Tab reaches, by name, until it comes round.
    QStringList tabStops() {
        QStringList stops;
        for (int turn = 0; turn < 60; ++turn) {
            driver->key(Qt::Key_Tab);
            if (const QString stop = driver->focused(); !stops.contains(stop))
                stops.append(stop);
        }
        return stops;
    }

    std::unique_ptr<WindowDriver> driver;
};

inline constexpr auto command = Qt::ControlModifier;

}  // namespace velmora
