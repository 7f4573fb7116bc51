#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "app/doorbell.h"

namespace velmora {

/// Rings over a socket whose name is no file: it is gone with the process that listens.
class LocalDoorbell final : public Doorbell {
  public:
    LocalDoorbell() = default;
    ~LocalDoorbell() override;
    LocalDoorbell(const LocalDoorbell&) = delete;
    LocalDoorbell& operator=(const LocalDoorbell&) = delete;

    [[nodiscard]] bool ring(const QString& folder) override;
    void answer(const QString& folder, std::function<void()> open) override;

  private:
    int listening_ = -1;
    std::unique_ptr<QSocketNotifier> ringing_;
};

}  // namespace velmora
