#import <Foundation/Foundation.h>

#include "platform/mac/doors.h"
#include "platform/mac/native_text.h"
#include "platform/mac/native_value.h"

namespace velmora {

namespace {

class MacScriptRunner final : public ScriptRunner {
   public:
    ScriptResult run(const QString& source) override {
        NSAppleScript* script = [[NSAppleScript alloc] initWithSource:nativeText(source)];
        if (script == nil) return {ScriptResult::Outcome::notPrepared, std::nullopt};
        NSDictionary<NSString*, id>* error = nil;
        [script executeAndReturnError:&error];
        if (error == nil) return {};
        return scriptFailure(valueOf([error objectForKey:NSAppleScriptErrorMessage]));
    }
};

}  // namespace

std::unique_ptr<ScriptRunner> makeMacScriptRunner() { return std::make_unique<MacScriptRunner>(); }

}  // namespace velmora
