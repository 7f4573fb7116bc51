#pragma once

#include <QString>

namespace velmora {

/// Keeps two Velmoras from working on one folder, which would text everybody twice and lose each
/// other's lines. The lock is on the folder itself: it leaves no file behind, and it ends with the
/// process, whatever ends that.
class HomeLock {
  public:
    /// Takes the lock on `folder` unless another process has it.
    explicit HomeLock(const QString& folder);
    ~HomeLock();
    HomeLock(const HomeLock&) = delete;
    HomeLock& operator=(const HomeLock&) = delete;

    /// Whether another process has the lock. False also where the folder cannot be locked, as on
    /// some network disks: that must keep nobody out.
    [[nodiscard]] bool isTaken() const { return isTaken_; }

  private:
    int folder_;
    bool isTaken_;
};

}  // namespace velmora
