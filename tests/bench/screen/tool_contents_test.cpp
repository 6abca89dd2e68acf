// What the Project and Properties windows show, and what the user does in them.
#include <gmock/gmock.h>

#include "bench/screen/project_tree.h"
#include "bench/screen/properties_list.h"
#include "bench/screen/screen_fixture.h"

namespace brimwork::bench {
namespace tool_contents_test {

using testing::ElementsAre;

struct ToolContents : ScreenFixture {
  HWND Tree() {
    return FindWindowExW(NativeOf(bench.windows.project), nullptr, WC_TREEVIEWW, nullptr);
  }

  HTREEITEM Next(WPARAM relation, HTREEITEM from) {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Tree(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(from)));
  }

  std::string TextOf(HTREEITEM item) {
    wchar_t text[200] = L"";
    TVITEMW asked{};
    asked.mask = TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = text;
    asked.cchTextMax = 200;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return win32::Narrow(text);
  }

  /// All items, indented by how deep they stand.
  std::vector<std::string> Outline() {
    std::vector<std::string> lines;
    Append(lines, Next(TVGN_ROOT, nullptr), "");
    return lines;
  }

  void Append(std::vector<std::string>& lines, HTREEITEM first, const std::string& indent) {
    for (HTREEITEM item = first; item != nullptr; item = Next(TVGN_NEXT, item)) {
      lines.push_back(indent + TextOf(item));
      Append(lines, Next(TVGN_CHILD, item), indent + " ");
    }
  }

  HTREEITEM Item(std::string_view text) {
    HTREEITEM kind = Next(TVGN_CHILD, Next(TVGN_ROOT, nullptr));
    for (; kind != nullptr; kind = Next(TVGN_NEXT, kind)) {
      for (HTREEITEM leaf = Next(TVGN_CHILD, kind); leaf; leaf = Next(TVGN_NEXT, leaf)) {
        if (TextOf(leaf) == text) return leaf;
      }
    }
    return nullptr;
  }

  void Choose(std::string_view text) {
    SendMessageW(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Item(text)));
    Pump();
  }
};

TEST_F(ToolContents, ListTheComponentsByKind) {
  EXPECT_THAT(Outline(),
              ElementsAre("P (P.vbp)", " Forms", "  frmF (f.frm)", " Modules", "  modA (a.bas)"));
}

TEST_F(ToolContents, FollowNamesAndNewComponents) {
  module->SetName("modB");
  bench.ActiveProject()->AddVBComponent(2);
  Show();
  EXPECT_THAT(Outline(), ElementsAre("P (P.vbp)", " Forms", "  frmF (f.frm)", " Modules",
                                     "  modB (a.bas)", " Class Modules", "  Class1 (Class1)"));
}

TEST_F(ToolContents, SelectWhatTheUserChooses) {
  Choose("modA (a.bas)");
  EXPECT_EQ(bench.SelectedComponent(), module);
}

TEST_F(ToolContents, MarkWhatIsSelectedInTheModel) {
  bench.Select(module);
  Show();
  EXPECT_EQ(TextOf(Next(TVGN_CARET, nullptr)), "modA (a.bas)");
}

TEST_F(ToolContents, OpenCodeForAModuleAndTheDesignerForAForm) {
  Choose("modA (a.bas)");
  SendMessageW(Tree(), WM_KEYDOWN, VK_RETURN, 0);
  Pump();
  EXPECT_NE(bench.OpenPaneOf(*module), nullptr);
  Choose("frmF (f.frm)");
  SendMessageW(Tree(), WM_KEYDOWN, VK_RETURN, 0);
  Pump();
  EXPECT_NE(bench.OpenDesignerOf(*form), nullptr);
  EXPECT_EQ(bench.OpenPaneOf(*form), nullptr);
}

struct PropertiesOnScreen : ScreenFixture {
  PropertiesOnScreen() {
    bench.Select(module);
    Show();
    const HWND tool = NativeOf(bench.windows.properties);
    content = FindWindowExW(tool, nullptr, L"BrimworkBenchProperties", nullptr);
    list = FindWindowExW(content, nullptr, WC_LISTVIEWW, nullptr);
    field = FindWindowExW(content, nullptr, L"EDIT", nullptr);
  }

  std::string Cell(int row, int column) {
    wchar_t text[200] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 200;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return win32::Narrow(text);
  }

  /// Opens the name's field and types into it.
  void TypeName(std::string_view name) {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = item.stateMask;
    SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    NMHDR note{list, 0, static_cast<UINT>(NM_RETURN)};
    SendMessageW(content, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&note));
    ASSERT_TRUE(IsWindowVisible(field));
    SetWindowTextW(field, win32::Wide(name).c_str());
  }

  void Press(WPARAM key) {
    SendMessageW(field, WM_KEYDOWN, key, 0);
    Pump();
  }

  HWND content = nullptr;
  HWND list = nullptr;
  HWND field = nullptr;
};

TEST_F(PropertiesOnScreen, ShowTheSelectedComponent) {
  EXPECT_EQ(Cell(0, 0), "(Name)");
  EXPECT_EQ(Cell(0, 1), "modA");
  bench.Select(form);
  Show();
  EXPECT_EQ(Cell(0, 1), "frmF");
}

TEST_F(PropertiesOnScreen, RenameTheComponent) {
  TypeName("modNew");
  Press(VK_RETURN);
  EXPECT_EQ(module->LastName(), "modNew");
  EXPECT_FALSE(IsWindowVisible(field));
  windows->Settle();
  EXPECT_EQ(Cell(0, 1), "modNew");
}

TEST_F(PropertiesOnScreen, LeaveTheNameOnEscape) {
  TypeName("modNew");
  Press(VK_ESCAPE);
  EXPECT_EQ(module->LastName(), "modA");
  EXPECT_FALSE(IsWindowVisible(field));
}

TEST_F(PropertiesOnScreen, RenameWhenTheFieldIsLeft) {
  TypeName("modLeft");
  SetFocus(windows->Frame());
  Pump();
  EXPECT_EQ(module->LastName(), "modLeft");
}

}  // namespace tool_contents_test
}  // namespace brimwork::bench
