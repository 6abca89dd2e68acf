#include "bench/model/component_kind.h"

#include <algorithm>
#include <array>

#include "environment/text.h"
#include "environment/vbe.h"

namespace brimwork::bench {
namespace {

constexpr std::array<ComponentKind, 9> kKinds{{
    {component_type::kStandardModule, "Module", ".bas"},
    {component_type::kClassModule, "Class", ".cls"},
    {component_type::kForm, "Form", ".frm"},
    {component_type::kUserControl, "UserControl", ".ctl"},
    {component_type::kPropertyPage, "PropertyPage", ".pag"},
    {component_type::kUserDocument, "UserDocument", ".dob"},
    {component_type::kDesigner, "Designer", ".dsr"},
    {component_type::kResourceFile, "ResFile32", ""},
    {component_type::kRelatedDocument, "RelatedDoc", ""},
}};

const ComponentKind* Pointer(const ComponentKind* found) {
  return found == kKinds.end() ? nullptr : found;
}

}  // namespace

const ComponentKind* KindOfKey(std::string_view key) {
  return Pointer(std::ranges::find_if(
      kKinds, [&](const ComponentKind& kind) { return EqualNames(kind.key, key); }));
}

const ComponentKind* KindOfExtension(std::string_view extension) {
  if (extension.empty()) return nullptr;
  return Pointer(std::ranges::find_if(
      kKinds, [&](const ComponentKind& kind) { return EqualNames(kind.extension, extension); }));
}

const ComponentKind& KindOfType(int type) {
  const int sought = type == component_type::kMdiForm ? component_type::kForm : type;
  return *std::ranges::find_if(kKinds,
                               [&](const ComponentKind& kind) { return kind.type == sought; });
}

bool HasCode(int type) {
  return type != component_type::kResourceFile && type != component_type::kRelatedDocument;
}

bool HasDesignerFor(int type) {
  return HasCode(type) && type != component_type::kStandardModule &&
         type != component_type::kClassModule;
}

}  // namespace brimwork::bench
