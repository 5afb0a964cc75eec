#include <wx/wx.h>

#include "support/Testing.h"
#include "ui/Icons.h"
#include "ui/MenuImages.h"

namespace kestrel::addin {

namespace {

wxImage Draw(const std::string& svg, int size, int pixels) {
  const auto bitmap = wxBitmapBundle::FromSVG(svg.c_str(), {size, size}).GetBitmap({pixels, pixels});
  return bitmap.IsOk() ? bitmap.ConvertToImage() : wxImage();
}

TEST(Icons, AreDrawingsThatTheToolkitUnderstands) {
  const auto check = [](const auto& icons, int size) {
    for (const char* svg : icons) {
      const auto image = Draw(svg, size, 2 * size);
      ASSERT_TRUE(image.IsOk()) << svg;
      ASSERT_TRUE(image.HasAlpha());
      EXPECT_EQ(image.GetAlpha(0, 0), wxALPHA_TRANSPARENT) << "the corner is outside the drawing";
      EXPECT_EQ(image.GetAlpha(size, size), wxALPHA_OPAQUE) << "the middle is inside";
    }
  };
  check(kLineIcons, kLineIconSize);
  check(kDialogIcons, kDialogIconSize);
}

TEST(MenuImages, AreDrawnWithinTheirField) {
  for (const auto& picture : MenuImageList) {
    SCOPED_TRACE(picture.Index);
    const auto image = Draw(MenuImageDocument(picture.Index), 16, 32);
    ASSERT_TRUE(image.IsOk() && image.HasAlpha());
    int drawn = 0;
    for (int i = 0; i < 32 * 32; ++i) drawn += image.GetAlpha()[i] == wxALPHA_OPAQUE;
    EXPECT_GT(drawn, 150);
    for (int i = 0; i < 32; ++i)
      for (const auto alpha :
           {image.GetAlpha(i, 0), image.GetAlpha(i, 31), image.GetAlpha(0, i), image.GetAlpha(31, i)})
        EXPECT_EQ(alpha, wxALPHA_TRANSPARENT) << "a picture that reaches its border was cut off there";
  }
}

}  // namespace

}  // namespace kestrel::addin
