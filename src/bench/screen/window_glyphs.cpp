#include "bench/screen/glyph_table.h"
#include "environment/vbe.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

using namespace ink;

// clang-format off
constexpr Stroke kProjectTree[] = {
    Area(kYellow, 1, 1, 6, 5), Frame(kOlive, 1, 1, 6, 5), Line(kGrey, 3, 6, 3, 13),
    Line(kGrey, 3, 9, 7, 9), Line(kGrey, 3, 13, 7, 13), Area(kWhite, 8, 7, 14, 10),
    Frame(kNavy, 8, 7, 14, 10), Area(kWhite, 8, 12, 14, 15), Frame(kNavy, 8, 12, 14, 15)};
constexpr Stroke kProperties[] = {
    Area(kWhite, 1, 1, 11, 14), Frame(kNavy, 1, 1, 11, 14), Line(kBlue, 6, 2, 6, 13),
    Line(kBlue, 2, 4, 10, 4), Line(kBlue, 2, 7, 10, 7), Line(kBlue, 2, 10, 10, 10),
    Area(kYellow, 9, 9, 14, 11), Frame(kOlive, 9, 9, 14, 11)};
constexpr Stroke kFormLayout[] = {
    Area(kSky, 1, 2, 14, 11), Frame(kGrey, 1, 2, 14, 11), Area(kWhite, 3, 4, 7, 7),
    Frame(kNavy, 3, 4, 7, 7), Line(kGrey, 5, 14, 10, 14), Area(kGrey, 7, 12, 8, 13)};
constexpr Stroke kObjectBrowser[] = {
    Area(kSky, 1, 6, 6, 11), Frame(kNavy, 1, 6, 6, 11), Area(kYellow, 8, 1, 13, 6),
    Frame(kOlive, 8, 1, 13, 6), Area(kWhite, 8, 9, 13, 14), Frame(kGreen, 8, 9, 13, 14)};
constexpr Stroke kToolbox[] = {
    Line(kGrey, 2, 2, 8, 8), Line(kGrey, 3, 2, 9, 8), Area(kGrey, 1, 1, 4, 3),
    Line(kOlive, 8, 8, 13, 13), Line(kOlive, 9, 8, 14, 13), Line(kMaroon, 13, 1, 2, 12),
    Line(kMaroon, 14, 1, 2, 13), Line(kMaroon, 14, 2, 3, 13)};
constexpr Stroke kViewObject[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Area(kNavy, 1, 2, 14, 4),
    Area(kSilver, 4, 8, 11, 10), Frame(kGrey, 4, 8, 11, 10)};
constexpr Stroke kViewCode[] = {
    Area(kWhite, 2, 1, 13, 14), Frame(kGrey, 2, 1, 13, 14), Line(kBlack, 4, 4, 9, 4),
    Line(kNavy, 6, 7, 11, 7), Line(kNavy, 6, 9, 10, 9), Line(kBlack, 4, 12, 8, 12)};
constexpr Stroke kImmediate[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Area(kNavy, 1, 2, 14, 4),
    Line(kBlack, 3, 7, 5, 9), Line(kBlack, 3, 11, 5, 9), Line(kBlack, 7, 11, 11, 11)};
constexpr Stroke kLocals[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Area(kNavy, 1, 2, 14, 4),
    Line(kGrey, 7, 5, 7, 12), Line(kGrey, 2, 8, 13, 8), Line(kGrey, 2, 11, 13, 11)};
constexpr Stroke kWatch[] = {
    Area(kWhite, 1, 9, 5, 13), Frame(kBlack, 1, 9, 6, 13), Area(kWhite, 9, 9, 14, 13),
    Frame(kBlack, 9, 9, 14, 13), Line(kBlack, 7, 10, 8, 10), Line(kBlack, 2, 8, 5, 3),
    Line(kBlack, 13, 8, 10, 3), Area(kSky, 2, 10, 5, 12), Area(kSky, 10, 10, 13, 12)};

constexpr Stroke kProjectWindow[] = {
    Area(kSky, 2, 4, 10, 12), Frame(kNavy, 2, 4, 10, 12), Area(kYellow, 6, 7, 14, 14),
    Frame(kOlive, 6, 7, 14, 14), Line(kOlive, 6, 9, 14, 9)};
constexpr Stroke kFolder[] = {
    Area(kOlive, 1, 3, 6, 4), Area(kOlive, 1, 5, 14, 13), Area(kYellow, 2, 5, 13, 12),
    Line(kWhite, 2, 6, 13, 6)};
constexpr Stroke kModule[] = {
    Area(kSky, 4, 2, 13, 8), Frame(kNavy, 4, 2, 13, 8), Area(kWhite, 2, 6, 11, 13),
    Frame(kNavy, 2, 6, 11, 13), Line(kGrey, 4, 8, 9, 8), Line(kGrey, 4, 10, 9, 10)};
constexpr Stroke kClass[] = {
    Area(kYellow, 2, 2, 8, 8), Frame(kOlive, 2, 2, 8, 8), Area(kSky, 7, 6, 13, 10),
    Frame(kNavy, 7, 6, 13, 10), Area(kWhite, 3, 9, 9, 14), Frame(kMaroon, 3, 9, 9, 14)};
constexpr Stroke kFormWindow[] = {
    Area(kWhite, 1, 2, 14, 13), Frame(kGrey, 1, 2, 14, 13), Area(kBlue, 1, 2, 14, 4)};

constexpr Stroke kPlain[] = {
    Area(kSilver, 3, 3, 12, 12), Frame(kGrey, 3, 3, 12, 12)};

constexpr CommandPicture kWindowPictures[] = {
    {command::kProjectExplorer, kProjectTree}, {command::kPropertiesWindow, kProperties}, {command::kFormLayout, kFormLayout},
    {command::kObjectBrowser, kObjectBrowser}, {command::kToolbox, kToolbox}, {command::kViewObject, kViewObject},
    {command::kViewCode, kViewCode}, {command::kImmediateWindow, kImmediate}, {command::kLocalsWindow, kLocals}, {command::kWatchWindow, kWatch},
    {command::kAddModule, kModule}, {command::kAddClassModule, kClass}};
// clang-format on

}  // namespace

std::span<const CommandPicture> WindowGlyphs() { return kWindowPictures; }

Glyph ComponentGlyph(int componentType) {
  switch (componentType) {
    case component_type::kStandardModule:
      return kModule;
    case component_type::kClassModule:
      return kClass;
    case component_type::kForm:
    case component_type::kMdiForm:
    case component_type::kPropertyPage:
    case component_type::kUserControl:
      return kFormWindow;
    default:
      return kViewCode;
  }
}

Glyph PlainGlyph() { return kPlain; }
Glyph ProjectGlyph() { return kProjectWindow; }
Glyph FolderGlyph() { return kFolder; }

}  // namespace brimwork::bench
