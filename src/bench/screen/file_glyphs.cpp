#include "bench/screen/glyph_table.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

using namespace ink;

// clang-format off
constexpr Stroke kProject[] = {
    Area(kSky, 2, 5, 11, 13), Frame(kNavy, 2, 5, 11, 13), Line(kNavy, 2, 6, 11, 6),
    Area(kYellow, 10, 1, 14, 5), Line(kOlive, 12, 1, 12, 5), Line(kOlive, 10, 3, 14, 3)};
constexpr Stroke kForm[] = {
    Area(kWhite, 1, 4, 11, 13), Frame(kGrey, 1, 4, 11, 13), Area(kNavy, 1, 4, 11, 6),
    Area(kYellow, 10, 0, 14, 4), Line(kOlive, 12, 0, 12, 4), Line(kOlive, 10, 2, 14, 2)};
constexpr Stroke kOpen[] = {
    Area(kOlive, 1, 3, 5, 4), Area(kOlive, 1, 5, 11, 13), Area(kYellow, 2, 5, 10, 12),
    Area(kOlive, 3, 7, 14, 13), Area(kYellow, 4, 8, 13, 12),
    Line(kBlack, 9, 2, 12, 2), Line(kBlack, 13, 3, 13, 4), Dot(kBlack, 12, 4), Dot(kBlack, 14, 4)};
constexpr Stroke kSave[] = {
    Area(kNavy, 1, 1, 14, 14), Area(kSky, 2, 2, 13, 13), Area(kNavy, 2, 7, 13, 13),
    Area(kWhite, 4, 2, 11, 6), Area(kSilver, 4, 9, 11, 13), Area(kNavy, 5, 10, 6, 13),
    Dot(kSeeThrough, 14, 1)};
constexpr Stroke kPrint[] = {
    Area(kWhite, 4, 1, 11, 6), Frame(kGrey, 4, 1, 11, 6), Area(kSilver, 1, 6, 14, 11),
    Frame(kBlack, 1, 6, 14, 11), Area(kWhite, 3, 9, 12, 14), Frame(kGrey, 3, 9, 12, 14),
    Line(kGrey, 5, 11, 10, 11), Dot(kGreen, 12, 7)};
constexpr Stroke kCut[] = {
    Line(kGrey, 4, 1, 9, 9), Line(kGrey, 11, 1, 6, 9), Line(kGrey, 4, 2, 8, 9),
    Frame(kNavy, 3, 10, 6, 13), Frame(kNavy, 9, 10, 12, 13), Dot(kNavy, 7, 9), Dot(kNavy, 8, 9)};
constexpr Stroke kCopy[] = {
    Area(kWhite, 1, 1, 8, 10), Frame(kNavy, 1, 1, 8, 10), Line(kBlue, 3, 3, 6, 3),
    Line(kBlue, 3, 5, 6, 5), Area(kWhite, 6, 5, 14, 14), Frame(kNavy, 6, 5, 14, 14),
    Line(kBlue, 8, 8, 12, 8), Line(kBlue, 8, 10, 12, 10), Line(kBlue, 8, 12, 11, 12)};
constexpr Stroke kPaste[] = {
    Area(kOlive, 1, 2, 11, 14), Area(kYellow, 2, 3, 10, 13), Area(kGrey, 4, 1, 8, 4),
    Area(kWhite, 6, 6, 14, 15), Frame(kNavy, 6, 6, 14, 15), Line(kBlue, 8, 9, 12, 9),
    Line(kBlue, 8, 11, 12, 11), Line(kBlue, 8, 13, 11, 13)};
constexpr Stroke kFind[] = {
    Area(kNavy, 2, 5, 5, 12), Area(kNavy, 10, 5, 13, 12), Area(kNavy, 3, 2, 4, 5),
    Area(kNavy, 11, 2, 12, 5), Area(kNavy, 6, 6, 9, 9), Area(kSky, 3, 10, 4, 11),
    Area(kSky, 11, 10, 12, 11), Dot(kSky, 7, 7)};
constexpr Stroke kUndo[] = {
    Line(kBlue, 2, 3, 2, 8), Line(kBlue, 2, 8, 7, 8), Line(kBlue, 3, 3, 3, 7),
    Line(kBlue, 3, 7, 6, 7), Line(kBlue, 4, 6, 7, 4), Line(kBlue, 7, 4, 11, 4),
    Line(kBlue, 11, 4, 13, 7), Line(kBlue, 13, 7, 12, 11), Line(kBlue, 12, 11, 9, 13),
    Line(kBlue, 5, 6, 8, 5), Line(kBlue, 8, 5, 11, 5)};
constexpr Stroke kRedo[] = {
    Line(kBlue, 13, 3, 13, 8), Line(kBlue, 13, 8, 8, 8), Line(kBlue, 12, 3, 12, 7),
    Line(kBlue, 12, 7, 9, 7), Line(kBlue, 11, 6, 8, 4), Line(kBlue, 8, 4, 4, 4),
    Line(kBlue, 4, 4, 2, 7), Line(kBlue, 2, 7, 3, 11), Line(kBlue, 3, 11, 6, 13),
    Line(kBlue, 10, 6, 7, 5), Line(kBlue, 7, 5, 4, 5)};
constexpr Stroke kStart[] = {
    Area(kNavy, 5, 2, 6, 13), Area(kNavy, 7, 4, 8, 11), Area(kNavy, 9, 5, 10, 10),
    Area(kNavy, 11, 7, 12, 8)};
constexpr Stroke kBreak[] = {Area(kNavy, 4, 3, 6, 12), Area(kNavy, 9, 3, 11, 12)};
constexpr Stroke kEnd[] = {Area(kNavy, 4, 4, 11, 11)};

constexpr CommandPicture kFilePictures[] = {
    {command::kAddProject, kProject}, {command::kNewProject, kProject}, {command::kAddForm, kForm},
    {command::kSaveFile, kSave},
    {command::kOpenProject, kOpen},
    {command::kSaveProject, kSave}, {command::kPrint, kPrint}, {command::kCut, kCut}, {command::kCopy, kCopy}, {command::kPaste, kPaste},
    {command::kFind, kFind}, {command::kUndo, kUndo}, {command::kRedo, kRedo}, {command::kStart, kStart}, {command::kBreak, kBreak},
    {command::kEnd, kEnd}};
// clang-format on

}  // namespace

std::span<const CommandPicture> FileGlyphs() { return kFilePictures; }

}  // namespace brimwork::bench
