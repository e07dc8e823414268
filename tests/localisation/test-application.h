#ifndef TEST_APPLICATION_H
#define TEST_APPLICATION_H

#include <gtest/gtest.h>

#include <memory>

// Creates the application object before the first test and destroys it
// after the last, while the toolkit's own statics are still alive.
// Register it with ::testing::AddGlobalTestEnvironment.
template <typename Application>
class ApplicationEnvironment : public ::testing::Environment {
public:
    void SetUp() override { application_.reset(new Application(argc_, argv_)); }
    void TearDown() override { application_.reset(); }

private:
    char name_[16] = "drovia-test";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    std::unique_ptr<Application> application_;
};

#endif  // TEST_APPLICATION_H
