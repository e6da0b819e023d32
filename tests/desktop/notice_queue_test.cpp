#include "desktop/windows/notice_queue.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

Notice Told(const char* text, Severity severity = Severity::Information) {
  return {severity, {text, text}, {}};
}

std::string Seen(const NoticeQueue& queue) {
  return queue.Shown() == nullptr ? "" : queue.Shown()->text.english;
}

TEST(NoticeQueueTest, NothingToldIsNothingSeen) {
  NoticeQueue queue;
  EXPECT_EQ(queue.Shown(), nullptr);
  queue.Drop();
  EXPECT_EQ(queue.Shown(), nullptr);
}

TEST(NoticeQueueTest, InformationPassesTheNewestFirst) {
  NoticeQueue queue;
  queue.Add(Told("a"));
  queue.Add(Told("b"));
  EXPECT_EQ(Seen(queue), "b");
  EXPECT_TRUE(queue.Passes());
  queue.Drop();
  EXPECT_EQ(Seen(queue), "");
}

TEST(NoticeQueueTest, WarningsAndOffersWaitForTheirTurn) {
  NoticeQueue queue;
  queue.Add(Told("a", Severity::Warning));
  queue.Add(Told("b", Severity::Failure));
  Notice offer = Told("c");
  offer.actions.push_back({{"Open", "開く"}, [] {}});
  queue.Add(offer);
  EXPECT_EQ(Seen(queue), "a");
  EXPECT_FALSE(queue.Passes());
  queue.Add(Told("passing"));
  EXPECT_EQ(Seen(queue), "passing");
  queue.Drop();
  EXPECT_EQ(Seen(queue), "a");
  queue.Drop();
  EXPECT_EQ(Seen(queue), "b");
  queue.Drop();
  EXPECT_EQ(Seen(queue), "c");
  queue.Drop();
  EXPECT_EQ(queue.Standing(), 0U);
}

TEST(NoticeQueueTest, WhatStandsIsNotToldTwice) {
  NoticeQueue queue;
  queue.Add(Told("a", Severity::Failure));
  queue.Add(Told("a", Severity::Failure));
  EXPECT_EQ(queue.Standing(), 1U);
}

TEST(NoticeQueueTest, NewerOneAboutTheSameTakesThePlaceOfTheOlder) {
  NoticeQueue queue;
  Notice none = Told("none", Severity::Warning);
  none.topic = "search";
  queue.Add(none);
  queue.Add(Told("other", Severity::Warning));
  Notice found = Told("found");
  found.topic = "search";
  queue.Add(found);
  EXPECT_EQ(Seen(queue), "found");
  queue.Drop();
  EXPECT_EQ(Seen(queue), "other");
  EXPECT_EQ(queue.Standing(), 1U);
}

TEST(NoticeQueueTest, EveryChangeIsTold) {
  NoticeQueue queue;
  int changes = 0;
  queue.changed = [&] { ++changes; };
  queue.Add(Told("a"));
  queue.Drop();
  queue.Drop();
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace veldrin
