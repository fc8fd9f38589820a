#include <QCoreApplication>

#include <gtest/gtest.h>

// Outside programs are watched by an event loop, which needs an application object.
class Application : public testing::Environment
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

static testing::Environment* const kApplication =
    testing::AddGlobalTestEnvironment(new Application);
