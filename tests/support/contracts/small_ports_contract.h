#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/dialogs.h"
#include "platform/message_boxes.h"
#include "platform/small_ports.h"

// What every form of the small ports does. Each function takes the form that is to be tried.
namespace kestra {

inline void expectClipboard(Clipboard& clipboard) {
  clipboard.setText("D\xC3\xA4mme\r\nx\ty");
  EXPECT_EQ(clipboard.text(), "D\xC3\xA4mme\r\nx\ty");
  clipboard.setText("");
  EXPECT_EQ(clipboard.text(), "");
}

inline void expectClock(Clock& clock) {
  const std::int64_t first = clock.steadyNs();
  EXPECT_GE(clock.steadyNs(), first);
  EXPECT_GE(clock.nowNs(), 0);
  const CalendarTime time = clock.localTime(clock.nowNs());
  EXPECT_TRUE(time.month >= 1 && time.month <= 12) << time.month;
  EXPECT_TRUE(time.day >= 1 && time.day <= 31) << time.day;
  EXPECT_TRUE(time.hour >= 0 && time.hour <= 23) << time.hour;
  EXPECT_TRUE(time.minute >= 0 && time.minute <= 59) << time.minute;
  EXPECT_TRUE(time.second >= 0 && time.second <= 60) << time.second;
}

// Both of two runs of 64 numbers without many repetitions, each bit set now and then.
inline void expectEntropy(EntropySource& entropy) {
  std::set<std::uint32_t> seen;
  std::uint32_t everSet = 0;
  std::uint32_t alwaysSet = ~0U;
  for (int i = 0; i < 64; ++i) {
    const std::uint32_t number = entropy.next();
    seen.insert(number);
    everSet |= number;
    alwaysSet &= number;
  }
  EXPECT_GT(seen.size(), 60U);
  EXPECT_EQ(everSet, ~0U);
  EXPECT_EQ(alwaysSet, 0U);
}

inline void expectAnswersWithinTheButtons(MessageBoxes& boxes) {
  const std::vector<std::vector<BoxButton>> offers = {{BoxButton::ok},
                                                      {BoxButton::yes, BoxButton::no},
                                                      {BoxButton::yes, BoxButton::no, BoxButton::cancel},
                                                      {BoxButton::ok, BoxButton::cancel}};
  for (const auto& offer : offers) {
    const BoxButton answer = boxes.show({"Title", "Text", BoxIcon::question, offer});
    EXPECT_NE(std::find(offer.begin(), offer.end(), answer), offer.end()) << captionOf(answer);
  }
}

inline void expectDialogsThatNobodyAnswersToBeCancelled(Dialogs& dialogs) {
  EXPECT_EQ(dialogs.chooseFiles({FileDialog::Kind::open, "Open", "All Files (*.*)|*.*", 1, "", true}), std::nullopt);
  EXPECT_EQ(dialogs.chooseDirectory("Choose", "/"), std::nullopt);
  EXPECT_EQ(dialogs.chooseColor(255), std::nullopt);
  EXPECT_FALSE(dialogs.chooseFont({}).has_value());
  EXPECT_FALSE(dialogs.choosePrint({}).has_value());
}

}  // namespace kestra
