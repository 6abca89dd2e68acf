// Pictures out of files, and what is painted of them and of drawings.
#include "windows/forms/form_pictures.h"

#include "windows/forms/bitmap_file.h"
#include "windows/forms/icon_file.h"
#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace form_pictures_test {

constexpr COLORREF kRed = RGB(255, 0, 0);

constexpr ControlLayout kControls[] = {
    {.name = "picDrawn",
     .place = {0, 0, 60, 20},
     .foreColor = Rgb(0, 0, 0),
     .backColor = Rgb(255, 255, 255),
     .borderStyle = border_style::kNone},
    {.name = "imgFace",
     .place = {70, 0, 32, 32},
     .backColor = Rgb(0, 0, 255),
     .picture = "msgbox/none",
     .isStretched = true},
    {.name = "lblColored", .place = {0, 40, 60, 20}, .backColor = Rgb(255, 0, 0)},
    {.name = "picBack", .place = {70, 40, 30, 30}, .backColor = system_color::kWindow},
};
constexpr FormLayout kLayout = {.name = "frmPictures",
                                .width = 120,
                                .height = 80,
                                .backColor = Rgb(0, 128, 0),
                                .controls = kControls};

class frmPictures : public Form {
 public:
  explicit frmPictures(FormHost& host) : Form(host, kLayout) {}
  PictureBox picDrawn{*this, "picDrawn"};
  Image imgFace{*this, "imgFace"};
  Label lblColored{*this, "lblColored"};
  PictureBox picBack{*this, "picBack"};
};

struct ShownPictures : NativeForms {
  ShownPictures() { form.Show(); }
  frmPictures form{host};
};

TEST(FormPictures, MagentaIsSeenThrough) {
  const GdiObject<HBITMAP> bitmap = BitmapOfFile(ProjectPicture("msgbox/none"), kRed);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(SizeOf(bitmap.get()).cx, 32);
  const MemoryContext context;
  const SelectedObject selected(context, bitmap.get());
  EXPECT_EQ(GetPixel(context, 0, 0), kRed);
}

TEST(FormPictures, BytesThatAreNoPictureGiveNone) {
  const auto whole = ProjectPicture("msgbox/none");
  EXPECT_FALSE(BitmapOfFile({}, 0));
  EXPECT_FALSE(BitmapOfFile(whole.first(whole.size() - 1), 0));
  EXPECT_FALSE(BitmapOfFile(whole.first(20), 0));
  const auto icon = ProjectPicture("icon/brimwork");
  EXPECT_FALSE(BitmapOfFile(icon, 0));
  EXPECT_FALSE(IconOfFile({}, 16));
  EXPECT_FALSE(IconOfFile(whole, 16));
  EXPECT_FALSE(IconOfFile(icon.first(30), 16));
}

TEST(FormPictures, AnIconHasTheSizeThatIsAskedFor) {
  for (const int size : {16, 32, 48, 20}) {
    const IconObject icon = IconOfFile(ProjectPicture("icon/brimwork"), size);
    ASSERT_TRUE(icon);
    ICONINFO info = {};
    GetIconInfo(icon.get(), &info);
    const GdiObject<HBITMAP> mask(info.hbmMask), color(info.hbmColor);
    EXPECT_EQ(SizeOf(mask.get()).cx, size);
  }
}

TEST(FormPictures, APictureIsMadeOnceForEachColorBehindIt) {
  FormPictures pictures(ProjectPicture, ScreenScale{});
  const HBITMAP bitmap = pictures.Bitmap("faces/help", Rgb(1, 2, 3));
  EXPECT_NE(bitmap, nullptr);
  EXPECT_EQ(pictures.Bitmap("faces/help", Rgb(1, 2, 3)), bitmap);
  EXPECT_NE(pictures.Bitmap("faces/help", Rgb(3, 2, 1)), bitmap);
  EXPECT_EQ(pictures.Bitmap("faces/nothing", 0), nullptr);
  EXPECT_EQ(pictures.Bitmap("", 0), nullptr);
}

TEST(FormPictures, APictureGrowsWithTheScreensDots) {
  FormPictures pictures(ProjectPicture, ScreenScale{192});
  EXPECT_EQ(SizeOf(pictures.Bitmap("faces/help", 0)).cx, 32);
}

TEST(FormPictures, ControlsHaveTheirColors) {
  ShownPictures shown;
  EXPECT_EQ(shown.PixelOf(shown.form.lblColored, 30, 15), kRed);
  EXPECT_EQ(shown.PixelOf(shown.form.picDrawn, 5, 5), RGB(255, 255, 255));
  EXPECT_EQ(shown.PixelOf(shown.form.imgFace, 0, 0), RGB(0, 0, 255));
  EXPECT_EQ(shown.PixelOf(shown.form.picBack, 5, 5), GetSysColor(COLOR_WINDOW));
  shown.form.lblColored.BackColor = Rgb(0, 0, 255);
  EXPECT_EQ(shown.PixelOf(shown.form.lblColored, 30, 15), RGB(0, 0, 255));
}

TEST(FormPictures, AnInvertingPenInvertsWhatItCovers) {
  ShownPictures shown;
  PictureBox& box = shown.form.picDrawn;
  box.FillRectangle({0, 0, 20, 20}, Rgb(0, 0, 0));
  box.DrawMode = DrawMode::kXorPen;
  box.FillRectangle({10, 0, 20, 20}, Rgb(255, 255, 255));
  EXPECT_EQ(shown.PixelOf(box, 5, 5), RGB(0, 0, 0));
  EXPECT_EQ(shown.PixelOf(box, 15, 5), RGB(255, 255, 255));
  EXPECT_EQ(shown.PixelOf(box, 25, 5), RGB(0, 0, 0));
  EXPECT_EQ(shown.PixelOf(box, 35, 5), RGB(255, 255, 255));
  box.Cls();
  EXPECT_EQ(shown.PixelOf(box, 25, 5), RGB(255, 255, 255));
}

TEST(FormPictures, ARefreshPaintsAtOnce) {
  ShownPictures shown;
  shown.form.picDrawn.FillRectangle({0, 0, 60, 20}, Rgb(255, 0, 0));
  shown.form.picDrawn.Refresh();
  const HDC context = GetDC(shown.WindowOf(shown.form.picDrawn));
  EXPECT_EQ(GetPixel(context, 30, 10), kRed);
  ReleaseDC(shown.WindowOf(shown.form.picDrawn), context);
}

TEST(FormPictures, ABorderTakesRoomOffTheInside) {
  ShownPictures shown;
  shown.form.picDrawn.BorderStyle = border_style::kFixedSingle;
  RECT inside;
  GetClientRect(shown.WindowOf(shown.form.picDrawn), &inside);
  EXPECT_EQ(inside.right, shown.form.picDrawn.ScaleWidth());
  EXPECT_EQ(inside.bottom, shown.form.picDrawn.ScaleHeight());
}

}  // namespace form_pictures_test
}  // namespace brimwork::windows
