#include "bench/screen/glyph_table.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

using namespace ink;

// clang-format off
constexpr Stroke kListMembers[] = {
    Area(kWhite, 2, 5, 13, 14), Frame(kGrey, 2, 5, 13, 14), Dot(kBlack, 2, 2), Dot(kBlack, 4, 2),
    Line(kNavy, 6, 2, 9, 2), Area(kTeal, 4, 7, 5, 8), Line(kBlack, 7, 8, 11, 8),
    Area(kTeal, 4, 11, 5, 12), Line(kBlack, 7, 12, 10, 12)};
constexpr Stroke kListConstants[] = {
    Area(kWhite, 2, 5, 13, 14), Frame(kGrey, 2, 5, 13, 14), Line(kBlack, 2, 1, 6, 1),
    Line(kBlack, 2, 3, 6, 3), Line(kMaroon, 4, 8, 6, 8), Line(kMaroon, 4, 10, 6, 10),
    Line(kBlack, 8, 8, 11, 8), Line(kBlack, 8, 10, 11, 10), Line(kBlack, 8, 12, 10, 12)};
constexpr Stroke kQuickInfo[] = {
    Area(kYellow, 1, 6, 14, 12), Frame(kOlive, 1, 6, 14, 12), Line(kBlack, 3, 9, 8, 9),
    Line(kNavy, 10, 8, 10, 10), Line(kNavy, 12, 8, 12, 10), Line(kBlack, 3, 3, 9, 3)};
constexpr Stroke kParameterInfo[] = {
    Area(kYellow, 1, 7, 14, 13), Frame(kOlive, 1, 7, 14, 13), Line(kNavy, 4, 9, 4, 11),
    Line(kBlack, 6, 10, 9, 10), Line(kNavy, 11, 9, 11, 11), Line(kBlack, 2, 3, 6, 3),
    Line(kNavy, 8, 1, 8, 4), Dot(kNavy, 9, 0), Dot(kNavy, 9, 5)};
constexpr Stroke kCompleteWord[] = {
    Line(kNavy, 1, 12, 4, 3), Line(kNavy, 4, 3, 7, 12), Line(kNavy, 2, 9, 6, 9),
    Line(kBlack, 9, 12, 9, 12), Line(kBlack, 11, 12, 11, 12), Line(kBlack, 13, 12, 13, 12),
    Line(kRed, 10, 4, 14, 4), Line(kRed, 12, 2, 12, 6)};
constexpr Stroke kIndent[] = {
    Line(kBlack, 2, 2, 13, 2), Line(kBlack, 8, 5, 13, 5), Line(kBlack, 8, 8, 13, 8),
    Line(kBlack, 8, 11, 13, 11), Line(kBlack, 2, 14, 13, 14), Line(kBlue, 2, 8, 6, 8),
    Line(kBlue, 4, 6, 6, 8), Line(kBlue, 4, 10, 6, 8)};
constexpr Stroke kOutdent[] = {
    Line(kBlack, 2, 2, 13, 2), Line(kBlack, 8, 5, 13, 5), Line(kBlack, 8, 8, 13, 8),
    Line(kBlack, 8, 11, 13, 11), Line(kBlack, 2, 14, 13, 14), Line(kBlue, 2, 8, 6, 8),
    Line(kBlue, 2, 8, 4, 6), Line(kBlue, 2, 8, 4, 10)};
constexpr Stroke kBreakpoint[] = {
    Area(kMaroon, 6, 3, 9, 12), Area(kMaroon, 3, 6, 12, 9), Area(kMaroon, 4, 4, 11, 11),
    Area(kRed, 6, 5, 7, 6)};
constexpr Stroke kComment[] = {
    Line(kGrey, 5, 2, 13, 2), Line(kGreen, 5, 5, 13, 5), Line(kGreen, 5, 8, 13, 8),
    Line(kGreen, 5, 11, 13, 11), Line(kGrey, 5, 14, 13, 14), Line(kGreen, 2, 4, 2, 5),
    Line(kGreen, 2, 7, 2, 8), Line(kGreen, 2, 10, 2, 11)};
constexpr Stroke kUncomment[] = {
    Line(kGrey, 5, 2, 13, 2), Line(kBlack, 5, 5, 13, 5), Line(kBlack, 5, 8, 13, 8),
    Line(kBlack, 5, 11, 13, 11), Line(kGrey, 5, 14, 13, 14), Line(kRed, 0, 6, 3, 10),
    Line(kRed, 3, 6, 0, 10)};

constexpr Stroke kBookmark[] = {
    Line(kNavy, 4, 2, 4, 14), Area(kSky, 5, 2, 12, 8), Frame(kNavy, 4, 2, 12, 8)};
constexpr Stroke kNextBookmark[] = {
    Line(kNavy, 2, 1, 2, 9), Area(kSky, 3, 1, 8, 5), Frame(kNavy, 2, 1, 8, 5),
    Line(kBlack, 11, 6, 11, 13), Line(kBlack, 8, 10, 11, 13), Line(kBlack, 14, 10, 11, 13)};
constexpr Stroke kPreviousBookmark[] = {
    Line(kNavy, 2, 6, 2, 14), Area(kSky, 3, 6, 8, 10), Frame(kNavy, 2, 6, 8, 10),
    Line(kBlack, 11, 2, 11, 9), Line(kBlack, 8, 5, 11, 2), Line(kBlack, 14, 5, 11, 2)};
constexpr Stroke kClearBookmarks[] = {
    Line(kNavy, 3, 2, 3, 14), Area(kSky, 4, 2, 10, 7), Frame(kNavy, 3, 2, 10, 7),
    Line(kRed, 8, 9, 13, 14), Line(kRed, 13, 9, 8, 14), Line(kRed, 9, 9, 13, 13),
    Line(kRed, 12, 9, 8, 13)};

constexpr CommandPicture kPictures[] = {
    {command::kListMembers, kListMembers}, {command::kListConstants, kListConstants}, {command::kQuickInfo, kQuickInfo},
    {command::kParameterInfo, kParameterInfo}, {command::kCompleteWord, kCompleteWord}, {command::kIndent, kIndent}, {command::kOutdent, kOutdent},
    {command::kToggleBreakpoint, kBreakpoint}, {command::kCommentBlock, kComment}, {command::kUncommentBlock, kUncomment}, {command::kToggleBookmark, kBookmark},
    {command::kNextBookmark, kNextBookmark}, {command::kPreviousBookmark, kPreviousBookmark}, {command::kClearBookmarks, kClearBookmarks}};
// clang-format on

}  // namespace

std::span<const CommandPicture> EditorGlyphs() { return kPictures; }

}  // namespace brimwork::bench
