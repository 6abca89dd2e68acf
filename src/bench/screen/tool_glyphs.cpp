#include "bench/screen/glyphs.h"

namespace brimwork::bench {
namespace {

using namespace ink;

// clang-format off
constexpr Stroke kPointer[] = {
    Line(kBlack, 4, 2, 4, 12), Line(kBlack, 5, 3, 5, 11), Line(kBlack, 6, 4, 6, 10),
    Line(kBlack, 7, 5, 7, 9), Line(kBlack, 8, 6, 8, 9), Line(kBlack, 9, 7, 9, 8),
    Line(kBlack, 10, 8, 10, 8), Line(kBlack, 7, 10, 9, 14), Line(kBlack, 8, 10, 10, 14)};
constexpr Stroke kPicture[] = {
    Area(kSky, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Area(kGreen, 2, 9, 13, 12),
    Line(kGreen, 4, 8, 8, 8), Area(kYellow, 10, 4, 12, 6)};
constexpr Stroke kLabel[] = {
    Line(kBlack, 3, 13, 7, 2), Line(kBlack, 4, 13, 8, 2), Line(kBlack, 7, 2, 12, 13),
    Line(kBlack, 8, 2, 13, 13), Line(kBlack, 5, 9, 11, 9)};
constexpr Stroke kText[] = {
    Area(kWhite, 1, 4, 14, 11), Frame(kGrey, 1, 4, 14, 11), Line(kBlack, 3, 6, 3, 9),
    Line(kBlack, 5, 9, 7, 9), Line(kBlack, 7, 7, 7, 9), Line(kBlack, 5, 7, 6, 7)};
constexpr Stroke kFrame[] = {
    Frame(kGrey, 1, 4, 14, 14), Area(kSeeThrough, 3, 4, 9, 4), Line(kBlack, 4, 2, 8, 2),
    Line(kBlack, 4, 3, 4, 6), Line(kBlack, 4, 4, 7, 4)};
constexpr Stroke kButton[] = {
    Area(kSilver, 1, 4, 14, 11), Frame(kBlack, 1, 4, 14, 11), Line(kWhite, 2, 5, 13, 5),
    Line(kBlack, 5, 8, 10, 8)};
constexpr Stroke kCheck[] = {
    Area(kWhite, 2, 3, 12, 13), Frame(kGrey, 2, 3, 12, 13), Line(kBlack, 4, 8, 6, 10),
    Line(kBlack, 6, 10, 10, 5), Line(kBlack, 4, 9, 6, 11), Line(kBlack, 6, 11, 10, 6)};
constexpr Stroke kOption[] = {
    Line(kGrey, 5, 2, 10, 2), Line(kGrey, 5, 13, 10, 13), Line(kGrey, 2, 5, 2, 10),
    Line(kGrey, 13, 5, 13, 10), Line(kGrey, 3, 4, 4, 3), Line(kGrey, 11, 3, 12, 4),
    Line(kGrey, 3, 11, 4, 12), Line(kGrey, 11, 12, 12, 11), Area(kBlack, 6, 6, 9, 9)};
constexpr Stroke kCombo[] = {
    Area(kWhite, 1, 2, 14, 6), Frame(kGrey, 1, 2, 14, 6), Area(kSilver, 10, 3, 13, 5),
    Line(kBlack, 11, 4, 12, 4), Area(kWhite, 1, 8, 14, 14), Frame(kGrey, 1, 8, 14, 14),
    Line(kBlack, 3, 10, 9, 10), Line(kBlack, 3, 12, 8, 12)};
constexpr Stroke kList[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Line(kBlack, 3, 5, 9, 5),
    Area(kNavy, 2, 7, 10, 8), Line(kBlack, 3, 10, 8, 10), Area(kSilver, 11, 3, 13, 12)};
constexpr Stroke kAcross[] = {
    Area(kSilver, 1, 5, 14, 10), Frame(kGrey, 1, 5, 14, 10), Line(kBlack, 3, 7, 4, 6),
    Line(kBlack, 3, 8, 4, 9), Line(kBlack, 12, 7, 11, 6), Line(kBlack, 12, 8, 11, 9),
    Area(kGrey, 6, 6, 8, 9)};
constexpr Stroke kDown[] = {
    Area(kSilver, 5, 1, 10, 14), Frame(kGrey, 5, 1, 10, 14), Line(kBlack, 7, 3, 6, 4),
    Line(kBlack, 8, 3, 9, 4), Line(kBlack, 7, 12, 6, 11), Line(kBlack, 8, 12, 9, 11),
    Area(kGrey, 6, 6, 9, 8)};
constexpr Stroke kTimer[] = {
    Line(kGrey, 5, 2, 10, 2), Line(kGrey, 5, 14, 10, 14), Line(kGrey, 1, 6, 1, 10),
    Line(kGrey, 14, 6, 14, 10), Line(kGrey, 2, 5, 4, 3), Line(kGrey, 11, 3, 13, 5),
    Line(kGrey, 2, 11, 4, 13), Line(kGrey, 11, 13, 13, 11), Line(kRed, 7, 4, 7, 8),
    Line(kRed, 7, 8, 11, 8)};
constexpr Stroke kShape[] = {
    Area(kSky, 1, 1, 8, 8), Frame(kNavy, 1, 1, 8, 8), Area(kYellow, 6, 6, 14, 14),
    Frame(kOlive, 6, 6, 14, 14)};
constexpr Stroke kLine[] = {Line(kBlack, 2, 3, 13, 12), Line(kBlack, 2, 4, 13, 13)};
constexpr Stroke kImage[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kTeal, 1, 2, 14, 13), Line(kTeal, 3, 11, 6, 7),
    Line(kTeal, 6, 7, 8, 10), Line(kTeal, 8, 10, 10, 8), Line(kTeal, 10, 8, 12, 11),
    Area(kYellow, 10, 4, 11, 5)};

constexpr Tool kTools[] = {
    {"Pointer", kPointer}, {"PictureBox", kPicture}, {"Label", kLabel}, {"TextBox", kText},
    {"Frame", kFrame}, {"CommandButton", kButton}, {"CheckBox", kCheck},
    {"OptionButton", kOption}, {"ComboBox", kCombo}, {"ListBox", kList}, {"HScrollBar", kAcross},
    {"VScrollBar", kDown}, {"Timer", kTimer}, {"Shape", kShape}, {"Line", kLine},
    {"Image", kImage}};
// clang-format on

}  // namespace

std::span<const Tool> ToolboxTools() { return kTools; }

}  // namespace brimwork::bench
