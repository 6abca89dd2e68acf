// One white picture as large as the form, with the logo, which is 320 by 120 pixels, at its top.
#include "core/frmSplash_layout.h"

namespace brimwork {
namespace {

constexpr Color kWhite = Rgb(255, 255, 255);
constexpr Color kGrey = Rgb(96, 96, 96);
constexpr Color kBlue = Rgb(0, 0, 192);

constexpr ControlName kContainer = {"picContainer"};

constexpr ControlLayout kSplashControls[] = {
    {.name = "picContainer",
     .place = {0, 0, 344, 252},
     .backColor = kWhite,
     .borderStyle = border_style::kFixedSingle},
    {.name = "picLogo",
     .container = kContainer,
     .place = {10, 8, 320, 120},
     .backColor = kWhite,
     .borderStyle = border_style::kNone,
     .picture = "splash/logo"},
    {.name = "lblVersion",
     .container = kContainer,
     .place = {10, 134, 320, 16},
     .text = "Version " BRIMWORK_VERSION,
     .font = ControlFont{.isBold = true},
     .backColor = kWhite,
     .alignment = TextAlignment::kCenter},
    {.name = "lblQuote",
     .container = kContainer,
     .place = {10, 156, 320, 16},
     .text = "Tidy code is a kindness to whoever reads it next.",
     .font = ControlFont{.isItalic = true},
     .backColor = kWhite,
     .alignment = TextAlignment::kCenter},
    {.name = "lblNotice",
     .container = kContainer,
     .place = {10, 180, 320, 29},
     .text = "Brimwork changes your code only when you tell it to. Keep a copy of what you cannot "
             "lose.",
     .foreColor = kGrey,
     .backColor = kWhite,
     .alignment = TextAlignment::kCenter},
    {.name = "lblWebSite",
     .container = kContainer,
     .place = {10, 221, 220, 16},
     .text = "Visit the Vantrel web site",
     .toolTip = "Open the web site in your browser",
     .font = ControlFont{.isUnderlined = true},
     .foreColor = kBlue,
     .backColor = kWhite},
    {.name = "cmdClose",
     .container = kContainer,
     .place = {255, 216, 75, 23},
     .text = "Close",
     .tabIndex = 0,
     .isDefault = true,
     .isCancel = true},
    {.name = "Timer1", .isEnabled = false, .interval = 1000},
};

constexpr FormLayout kSplashLayout = {.name = "frmSplash",
                                      .caption = "About Brimwork",
                                      .width = 344,
                                      .height = 252,
                                      .border = FormBorder::kNone,
                                      .hasControlBox = false,
                                      .startUpPosition = StartUpPosition::kCenterScreen,
                                      .controls = kSplashControls};

}  // namespace

const FormLayout& SplashLayout() { return kSplashLayout; }

}  // namespace brimwork
