#pragma once

#include <QString>
#include <memory>

#include "app/app_model.h"
#include "platform/platform.h"
#include "support/virtual_surroundings.h"

namespace velmora {

/// The phone of the bench's n-th person, from 0: "+1212" and seven digits.
[[nodiscard]] QString benchPhone(int n);

/// A home folder with as many people and messages as asked for. Making one with a million messages
/// takes some ten seconds, so it is kept under the build folder's `bench-home` and made anew only
/// when missing. Nine people in ten have a conversation; its length falls as in real histories, few
/// long and many short.
[[nodiscard]] QString benchHome(int people, int messages);

/// The same with 1,000 messages and the settings of somebody who has used it: everyone's list is
/// chosen, with a message.
[[nodiscard]] QString usedHome(int people);

/// The application's model on such a home, with virtual time and everyone's list chosen.
class BenchModel {
  public:
    explicit BenchModel(const QString& home);

    [[nodiscard]] AppModel& operator*() { return *model_; }
    [[nodiscard]] AppModel* operator->() { return model_.get(); }

    VirtualSurroundings world;

  private:
    Platform platform_;
    std::unique_ptr<AppModel> model_;
};

}  // namespace velmora
