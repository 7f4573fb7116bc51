#pragma once

#import <Contacts/Contacts.h>

#include <gtest/gtest.h>

#include <QStringList>
#include <memory>
#include <thread>

/// What the fakes of the platform answer, and what they were asked. A fresh one for each test.
struct FakeMac {
    // The address book.
    NSInteger status = 0;
    BOOL granted = NO;
    NSError* accessError = nil;
    NSError* readError = nil;
    bool readFails = false;
    NSArray* contacts = @[];
    NSDictionary* members = @{};
    NSArray* groups = @[];
    NSArray* keys = @[];   ///< that the last read asked for; reading any other raises, as there
    bool unified = false;  ///< what the last request asked for
    std::thread answering;

    // Scripts.
    bool scriptIsRefused = false;
    NSDictionary* scriptError = nil;

    // The desktop.
    bool hasMessages = true;
    bool hasFolders = true;
    AEKeyword eventAttribute = 0;  ///< the one that the current event has; without, there is none
    NSString* bundle = nil;
    NSArray* processes = @[];  ///< that run from this bundle
    int comesForward = 0;      ///< the process that can be activated

    id preference = nil;
    QStringList calls;  ///< what was asked of scripts, workspace, activities and preferences
};

extern FakeMac* fakeMac;

/// An object of the platform with these values by the names of its properties.
id made(Class type, NSDictionary* values);
id valueIn(id object, NSString* name);

/// A Mac of its own for each test, and what is to be released after it.
class MacTest : public testing::Test {
   public:
    MacTest() { fakeMac = mac.get(); }
    ~MacTest() override {
        fakeMac = nullptr;
        mac.reset();
        [pool_ drain];
    }
    MacTest(const MacTest&) = delete;
    MacTest& operator=(const MacTest&) = delete;

   private:
    NSAutoreleasePool* pool_ = [[NSAutoreleasePool alloc] init];

   protected:
    std::unique_ptr<FakeMac> mac = std::make_unique<FakeMac>();
};
