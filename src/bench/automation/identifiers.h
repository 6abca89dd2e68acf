// The interface identifiers of the object model.
#pragma once

#include <windows.h>

namespace brimwork::bench {

/// {xxxxxxxx-0000-0000-C000-000000000046}, as most of them are.
constexpr IID Classic(unsigned long first) { return {first, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}; }

namespace iid {
inline constexpr IID kVbe = Classic(0x0002E100);
inline constexpr IID kWindows = Classic(0x0002E10D);
inline constexpr IID kWindow = Classic(0x0002E10E);
inline constexpr IID kCodePanes = Classic(0x0002E171);
inline constexpr IID kCodePane = Classic(0x0002E175);
inline constexpr IID kCodeModule = Classic(0x0002E16D);
inline constexpr IID kVbProjects = Classic(0x0002E102);
inline constexpr IID kVbProject = Classic(0x0002E106);
inline constexpr IID kVbComponents = Classic(0x0002E147);
inline constexpr IID kVbComponent = Classic(0x0002E148);
inline constexpr IID kAddIns = Classic(0x0002E109);
inline constexpr IID kAddIn = Classic(0x0002E10B);
inline constexpr IID kEvents = Classic(0x0002E112);
inline constexpr IID kClickEvents = Classic(0x0002E197);        // what the object is
inline constexpr IID kClickEventsSource = Classic(0x0002E198);  // what it calls
inline constexpr IID kCommandBars = Classic(0x000C0302);
inline constexpr IID kCommandBar = Classic(0x000C0304);
inline constexpr IID kCommandBarControls = Classic(0x000C0306);
inline constexpr IID kCommandBarControl = Classic(0x000C0308);
inline constexpr IID kCommandBarPopup = Classic(0x000C030A);
inline constexpr IID kCommandBarButton = Classic(0x000C030E);
}  // namespace iid

}  // namespace brimwork::bench
