// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/recovery_writer.h"

#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <vector>

namespace kav {

class RecoveryWriterTest : public testing::Test {
  protected:
    void SetUp() override { makeFolder(application_.project()); }

    std::shared_ptr<RecoveryFile> copyOf(int number) {
        return std::make_shared<RecoveryFile>(application_, number, "Untitled");
    }
    [[nodiscard]] bool projectsFolderIsEmpty() const {
        return std::filesystem::is_empty(application_.project());
    }

    test::TemporaryFolder folder_;
    ApplicationFolder application_{folder_.path().string()};
};

TEST_F(RecoveryWriterTest, WritesAndRemovesInTheOrderAsked) {
    std::vector<std::string> removed;
    RecoveryWriter writer([&](const std::string& path) { removed.push_back(path); });
    const auto first = copyOf(1);
    const auto second = copyOf(2);
    writer.write(first, "one", {});
    writer.write(second, "two", {});
    writer.finish();
    EXPECT_EQ(readFile(first->path()), "one");
    EXPECT_EQ(readFile(second->path()), "two");
    const std::string path = first->path();
    writer.write(first, "more", {});
    writer.remove(first);
    writer.remove(second);
    writer.finish();
    EXPECT_TRUE(projectsFolderIsEmpty());
    ASSERT_EQ(removed.size(), 2U);
    EXPECT_EQ(removed[0], path);
}

TEST_F(RecoveryWriterTest, PassesOverATextForWhichThereIsANewerOne) {
    RecoveryWriter writer;
    std::promise<void> started;
    std::promise<void> goOn;
    std::atomic<int> writes{0};
    // The first write holds the writer up while the others queue.
    writer.write(copyOf(1), "holds", [&](const auto&) {
        started.set_value();
        goOn.get_future().wait();
    });
    started.get_future().wait();
    const auto copy = copyOf(2);
    for (int i = 0; i < 10; ++i)
        writer.write(copy, "text " + std::to_string(i), [&](const auto&) { ++writes; });
    goOn.set_value();
    writer.finish();
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(readFile(copy->path()), "text 9");
}

TEST_F(RecoveryWriterTest, TellsAFailureAndGoesOnWithTheOthers) {
    const auto copy = copyOf(1);
    RecoveryWriter writer;
    std::optional<Failure> failure;
    std::filesystem::remove(application_.project());
    writer.write(copy, "text", [&](const std::optional<Failure>& raised) { failure = raised; });
    writer.finish();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 76);
    makeFolder(application_.project());
    writer.write(copy, "text", [&](const std::optional<Failure>& raised) { failure = raised; });
    writer.finish();
    EXPECT_FALSE(failure.has_value());
}

TEST_F(RecoveryWriterTest, EndsWhenAllIsWritten) {
    std::vector<std::shared_ptr<RecoveryFile>> copies;
    {
        RecoveryWriter writer;
        for (int number = 1; number <= 20; ++number) {
            copies.push_back(copyOf(number));
            writer.write(copies.back(), std::string(10000, 'x'), {});
        }
    }
    for (const auto& copy : copies)
        EXPECT_EQ(readFile(copy->path()).size(), 10000U);
}

}  // namespace kav
