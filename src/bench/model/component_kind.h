// The kinds of components and how project files and source files tell them apart.
#pragma once

#include <string_view>

namespace brimwork::bench {

struct ComponentKind {
  int type;                    // component_type::k...
  std::string_view key;        // of its line in a project file
  std::string_view extension;  // of its file, "" where any will do
};

/// The kind that a project file calls key, in any case; null when key names no component. A form's
/// file may say that it is an MDI form.
const ComponentKind* KindOfKey(std::string_view key);

/// The kind of source file that has the extension, in any case; null for other files.
const ComponentKind* KindOfExtension(std::string_view extension);

/// The kind of a type of component; an MDI form is of the kind of forms.
const ComponentKind& KindOfType(int type);

/// True for forms and the like, which have a designer beside their code.
bool HasDesignerFor(int type);

/// False for resource files and related documents, which a project only lists.
bool HasCode(int type);

}  // namespace brimwork::bench
