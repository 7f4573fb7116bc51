#pragma once

#import <Contacts/Contacts.h>

#include <gtest/gtest.h>

#include <QStringList>
#include <map>
#include <string>
#include <thread>

/// What is answered, by the name of what is asked.
using Answers = std::map<std::string, id>;

/// A Mac of its own for each test: what it answers, and what it was asked.
struct MacTest : testing::Test {
    MacTest();
    ~MacTest() override { [pool drain]; }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    Answers answers;
    id error = nil;     ///< that whoever may fail leaves behind
    QStringList calls;  ///< every message with an argument, and its arguments
    std::thread answering;
};

/// An object of the platform with answers of its own.
id made(const char* type, const Answers& answers);
