#pragma once

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <memory>

// For tests of what an event loop brings, such as the end of a program: it needs an application
// object, and who includes this has one.
class CoreApplication : public testing::Environment
{
public:
    void SetUp() override { application = std::make_unique<QCoreApplication>(count, words); }
    void TearDown() override { application.reset(); }

private:
    int count = 1;
    char name[6] = "tests";
    char* words[2] = {name, nullptr};
    std::unique_ptr<QCoreApplication> application;
};

inline testing::Environment* const kCoreApplication =
    testing::AddGlobalTestEnvironment(new CoreApplication);
