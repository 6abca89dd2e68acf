#include "core/frmInfo_layout.h"

namespace brimwork {
namespace {

constexpr Color kBarText = Rgb(0, 0, 0);
constexpr Color kBarBack = Rgb(255, 255, 255);

constexpr ImageLayout kFaces[] = {
    {"COMMENT", "faces/comment"},
    {"COMMENTALL", "faces/commentall"},
    {"ERROR", "faces/error"},
    {"TIMESTAMP", "faces/timestamp"},
    {"INDENT", "faces/indent"},
    {"CLEANUP", "faces/cleanup"},
    {"CLOSE", "faces/close"},
    {"CLEAR", "faces/clear"},
    {"MSGBOX", "faces/msgbox"},
    {"SPELLCHECK", "faces/spellcheck"},
    {"FULLSCREEN", "faces/fullscreen"},
    {"STANDARDHEADER", "faces/standardheader"},
    {"ADAPTEDHEADER", "faces/adaptedheader"},
    {"TEXT", "faces/text"},
    {"RTF", "faces/rtf"},
    {"HTM", "faces/htm"},
    {"QUICKEXPORT", "faces/quickexport"},
    {"ADDLINENUMBERS", "faces/addlinenumbers"},
    {"REMOVELINENUMBERS", "faces/removelinenumbers"},
    {"HELP", "faces/help"},
    {"WEBSITE", "faces/website"},
};

// The bar's colours are fixed: of these two each is the inverse of the other.
constexpr ControlLayout kInfoControls[] = {
    {.name = "lblInfo", .place = {12, 12, 340, 16}},
    {.name = "picProgress",
     .place = {12, 34, 340, 24},
     .foreColor = kBarText,
     .backColor = kBarBack,
     .borderStyle = border_style::kFixedSingle},
    {.name = "imlFaces", .images = kFaces},
    {.name = "picToolbar",
     .place = {0, 0, 16, 16},
     .isVisible = false,
     .borderStyle = border_style::kNone},
};

constexpr FormLayout kInfoLayout = {.name = "frmInfo",
                                    .width = 364,
                                    .height = 70,
                                    .startUpPosition = StartUpPosition::kCenterScreen,
                                    .controls = kInfoControls};

}  // namespace

const FormLayout& InfoLayout() { return kInfoLayout; }

}  // namespace brimwork
