// What the objects of one connection to the environment share: the numbers of their members, and
// how long a call that is turned away is tried again.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace brimwork::windows {

/// The numbers of the members of one kind of object. The environment is asked for each once: all
/// objects of a kind have one interface.
class MemberNames {
 public:
  /// name: a literal. Returns what object answers when it is asked.
  HRESULT Find(IDispatch& object, std::wstring_view name, DISPID& id);

 private:
  std::vector<std::pair<std::wstring_view, DISPID>> known_;
};

enum class ObjectKind {
  kVbe,
  kWindows,
  kWindow,
  kCodePane,
  kCodeModule,
  kProject,
  kComponents,
  kComponent,
  kCommandBars,
  kCommandBar,
  kControls,
  kControl,
  kEvents,
  // Of the word processor:
  kWord,
  kDocuments,
  kDocument,
  kDocumentWindow,
  kSelection,
  kLast = kSelection
};

/// How a call is repeated that the environment turned away because it is busy. The add-in runs on
/// the environment's own thread, so waiting long would only keep it from becoming free, and a
/// message loop in between would let the user change what a command is in the middle of. Hence a
/// few short pauses, for an environment that waits for another thread or program, and no messages.
struct Patience {
  std::vector<unsigned> pauses = {10, 20, 40};  // milliseconds before each repetition
  std::function<void(unsigned milliseconds)> sleep = [](unsigned time) { Sleep(time); };
};

struct Connection {
  MemberNames& NamesOf(ObjectKind kind) { return names[static_cast<std::size_t>(kind)]; }

  Patience patience;
  std::shared_ptr<const void>
      inUse;              // what objects of the add-in's that the environment holds hold
  bool hasEnded = false;  // from then on no call reaches the environment
  std::array<MemberNames, static_cast<std::size_t>(ObjectKind::kLast) + 1> names;
};

}  // namespace brimwork::windows
