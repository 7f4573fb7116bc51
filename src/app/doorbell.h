#pragma once

#include <QString>
#include <functional>

namespace velmora {

/// How a second start on one home reaches the Velmora that has it open. Who may ring is up to the
/// system: nobody but the user of that home.
class Doorbell {
  public:
    virtual ~Doorbell() = default;

    /// Asks the Velmora that works on `folder` to come to the front. False when it did not say
    /// within two seconds that it does.
    [[nodiscard]] virtual bool ring(const QString& folder) = 0;

    /// From now on calls `open` on the interface thread whenever somebody rings for `folder`. Does
    /// nothing where the system itself brings the window to the front.
    virtual void answer(const QString& folder, std::function<void()> open) = 0;
};

}  // namespace velmora
