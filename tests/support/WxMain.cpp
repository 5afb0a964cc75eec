// main() of the test programs that show windows.  They need a display.
#include <gmock/gmock.h>
#include <wx/wx.h>

namespace kestrel {

class TTestApp final : public wxApp {
 public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    return true;
  }
};

}  // namespace kestrel

namespace {

void FailOnAssert(const wxString& file, int line, const wxString&, const wxString& condition,
                  const wxString& text) {
  ADD_FAILURE_AT(file.utf8_str(), line) << condition.utf8_string() << ": " << text.utf8_string();
}

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(kestrel::TTestApp);

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!wxEntryStart(argc, argv)) return 2;  // the toolkit has said why
  wxTheApp->CallOnInit();
  wxSetAssertHandler(FailOnAssert);
  const int result = RUN_ALL_TESTS();
  wxEntryCleanup();
  return result;
}
