#pragma once

#import <Contacts/Contacts.h>
#include <dispatch/dispatch.h>

#include <coroutine>

namespace velmora {

/// Awaits the user's answer to the request for access to the address book. The framework answers on
/// a thread of its own; the task goes on on the main one. An error counts as a refusal.
class AccessRequest {
   public:
    explicit AccessRequest(CNContactStore* store) : store_(store) {}

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> task) {
        bool* granted = &granted_;
        [store_ requestAccessForEntityType:CNEntityTypeContacts
                         completionHandler:^(BOOL answer, NSError* error) {
                             const bool allowed = answer && error == nil;
                             dispatch_async(dispatch_get_main_queue(), ^{
                                 *granted = allowed;
                                 task.resume();
                             });
                         }];
    }
    [[nodiscard]] bool await_resume() const noexcept { return granted_; }

   private:
    CNContactStore* store_;
    bool granted_ = false;
};

}  // namespace velmora
