#include <wx/clipbrd.h>

#include "support/ModalScript.h"
#include "support/Testing.h"
#include "toolkit/WxText.h"
#include "ui/MsgWin.h"

namespace kestrel::addin {

TEST(MessageTimeStamp, IsOnTheTwelveHourClock) {
  const struct {
    int Hour, Minute, Second;
    const char* Stamp;
  } rows[] = {{13, 5, 9, "03/02/2024 01:05:09 PM"},
              {0, 0, 0, "03/02/2024 12:00:00 AM"},
              {11, 59, 59, "03/02/2024 11:59:59 AM"},
              {12, 0, 0, "03/02/2024 12:00:00 PM"}};
  for (const auto& row : rows) {
    std::tm time{};
    time.tm_year = 2024 - 1900, time.tm_mon = 2, time.tm_mday = 2;
    time.tm_hour = row.Hour, time.tm_min = row.Minute, time.tm_sec = row.Second;
    EXPECT_EQ(MessageTimeStamp(time), row.Stamp);
  }
}

struct MessageWindow : testing::Test {
  std::string Cell(long row, int column) const {
    return FromWx(window.MessageListView->GetItemText(row, column));
  }
  int Lines() const {
    wxTheApp->ProcessPendingEvents();
    return window.MessageListView->GetItemCount();
  }

  ~MessageWindow() override { delete MsgWinForm; }

  TMsgWinForm& window = *new TMsgWinForm("");
};

TEST_F(MessageWindow, AppendsLinesWithKindAndDateAndStaysHidden) {
  window.SendMessage(mwtInfo, "Checked out");
  window.SendMessage(mwtWarning, "%s is %d bytes", {"größe.pas", 12});
  window.SendMessage(mwtError, "first\r\nsecond");
  window.SendMessage(mwtStatus, "latin \xe4");
  ASSERT_EQ(Lines(), 4);
  EXPECT_EQ(Cell(0, 0), "Checked out");
  EXPECT_EQ(Cell(1, 0), "größe.pas is 12 bytes");
  EXPECT_EQ(Cell(2, 0), "first  second") << "a row is one line";
  EXPECT_EQ(Cell(3, 0), "latin ä") << "text that is not UTF-8 is shown, not dropped";
  for (long row = 0; row < 4; ++row) {
    EXPECT_THAT(Cell(row, 1), MatchesRegex("../../.... ..:..:.. .M"));
    wxListItem item;
    item.SetId(row);
    item.SetMask(wxLIST_MASK_IMAGE);
    ASSERT_TRUE(window.MessageListView->GetItem(item));
    EXPECT_EQ(item.GetImage(), row) << "the icon is the kind's";
  }
  EXPECT_FALSE(window.IsShown());
}

TEST_F(MessageWindow, HoldsALongLogAndDoesNotScroll) {
  window.ShowWindow(true);
  wxYield();
  for (int i = 0; i < 100000; ++i) window.SendMessage(mwtInfo, std::to_string(i));
  wxYield();
  EXPECT_EQ(Lines(), 100000);
  EXPECT_EQ(Cell(99999, 0), "99999");
  EXPECT_EQ(window.MessageListView->GetTopItem(), 0);
}

TEST_F(MessageWindow, EscapeAndTheCloseButtonHideItWithItsLines) {
  window.SendMessage(mwtInfo, "kept");
  window.ShowWindow(true);
  EXPECT_TRUE(window.IsShown());
  EXPECT_TRUE(Preview(window.MessageListView, WXK_ESCAPE));
  EXPECT_FALSE(window.IsShown());
  window.ShowWindow(true);
  wxYield();
  EXPECT_TRUE(window.Close()) << "it does not hold up the host's exit";
  wxYield();
  wxTheApp->ProcessIdle();  // when the toolkit destroys what was closed
  ASSERT_EQ(MsgWinForm, &window) << "hidden, not destroyed";
  EXPECT_FALSE(window.IsShown());
  EXPECT_EQ(Cell(0, 0), "kept");
}

TEST_F(MessageWindow, ItsMenuClearsTheLines) {
  const auto clear = [this] {
    const auto* item = window.VCMPopupMenu.FindItemByPosition(0);
    EXPECT_EQ(item->GetItemLabelText(), "Clear Messages");
    wxCommandEvent event(wxEVT_MENU, item->GetId());
    window.HandleWindowEvent(event);
  };
  clear();
  for (const char* text : {"one", "two"}) window.SendMessage(mwtInfo, text);
  window.ShowWindow(true);
  EXPECT_EQ(Lines(), 2);
  window.MessageListView->Select(1);
  clear();
  wxYield();
  EXPECT_EQ(Lines(), 0);
  window.SendMessage(mwtInfo, "three");
  EXPECT_EQ(Lines(), 1);
  EXPECT_FALSE(window.MessageListView->IsSelected(0));
}

TEST_F(MessageWindow, CopiesTheSelectedLines) {
  for (const char* text : {"one", "two\r\nlines", "three"}) window.SendMessage(mwtInfo, text);
  EXPECT_EQ(Lines(), 3);
  Preview(window.MessageListView, 'A', wxMOD_CONTROL);
  window.MessageListView->Select(0, false);
  Preview(window.MessageListView, 'C', wxMOD_CONTROL);
  const wxClipboardLocker locker;
  wxTextDataObject copied;
  ASSERT_TRUE(wxTheClipboard->GetData(copied));
  EXPECT_THAT(FromWx(copied.GetText()), MatchesRegex("two\r?\nlines\t.*M\nthree\t.*M\n"));
}

}  // namespace kestrel::addin
