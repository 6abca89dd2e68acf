#include <gtest/gtest.h>

#include <string>

#include "environment/basic_lines.h"

namespace brimwork {
namespace declaration_test {

/// The declared name, "" when the line declares nothing.
std::string NameIn(std::string_view line) {
  const auto declaration = ParseDeclaration(line);
  return declaration ? std::string(declaration->name) : std::string();
}

TEST(Declaration, IsSubFunctionOrPropertyWithAName) {
  EXPECT_EQ(NameIn("Sub A()"), "A");
  EXPECT_EQ(NameIn("Function A() As Long"), "A");
  EXPECT_EQ(NameIn("Property Get A() As Long"), "A");
  EXPECT_EQ(NameIn("Property Let A(x As Long)"), "A");
  EXPECT_EQ(NameIn("Property Set A(x As Object)"), "A");
}

TEST(Declaration, TellsTheKindAndTheWordAsWritten) {
  EXPECT_EQ(ParseDeclaration("sub A()")->kind, ProcKind::kProcedure);
  EXPECT_EQ(ParseDeclaration("sub A()")->word, "sub");
  EXPECT_EQ(ParseDeclaration("Function A()")->kind, ProcKind::kProcedure);
  EXPECT_EQ(ParseDeclaration("Function A()")->word, "Function");
  EXPECT_EQ(ParseDeclaration("Property Get A()")->kind, ProcKind::kPropertyGet);
  EXPECT_EQ(ParseDeclaration("PROPERTY let A(x)")->kind, ProcKind::kPropertyLet);
  EXPECT_EQ(ParseDeclaration("Property Set A(x)")->kind, ProcKind::kPropertySet);
  EXPECT_EQ(ParseDeclaration("PROPERTY let A(x)")->word, "PROPERTY");
}

TEST(Declaration, MayStandBehindAnyOfTheFourModifiers) {
  for (const char* modifiers :
       {"Public ", "Private ", "Friend ", "Static ", "Public Static ", "Static Public ",
        "Private Static ", "Static Private ", "Friend Static ", "Static Friend "}) {
    EXPECT_EQ(NameIn(std::string(modifiers) + "Sub A()"), "A") << modifiers;
    EXPECT_EQ(NameIn(std::string(modifiers) + "Function A()"), "A") << modifiers;
    EXPECT_EQ(NameIn(std::string(modifiers) + "Property Get A()"), "A") << modifiers;
  }
}

TEST(Declaration, IsReadInAnyCaseWithAnyBlanksAndTabsBetweenItsWords) {
  EXPECT_EQ(NameIn("  pUBLIC  STATIC\tfunction \t Total(x)"), "Total");
  EXPECT_EQ(NameIn("\tPROPERTY\tGET\tTotal()"), "Total");
}

TEST(Declaration, NameEndsBeforeAParenthesisABlankATabAColonAnApostropheOrTheLinesEnd) {
  EXPECT_EQ(NameIn("Sub A1_b(x)"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b (x)"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b\t(x)"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b: End Sub"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b:End Sub"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b'note"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b"), "A1_b");
  EXPECT_EQ(NameIn("Sub A1_b _"), "A1_b");
}

TEST(Declaration, NameStartsWithALetterOrACharacterAbove127) {
  EXPECT_EQ(NameIn("Sub größe()"), "größe");
  EXPECT_EQ(NameIn("Sub Ärger()"), "Ärger");
  EXPECT_EQ(NameIn("Sub 名前()"), "名前");
  EXPECT_EQ(NameIn("Sub 1A()"), "");
  EXPECT_EQ(NameIn("Sub _A()"), "");
  EXPECT_EQ(NameIn("Sub (x)"), "");
  EXPECT_EQ(NameIn("Sub [A]()"), "");
}

TEST(Declaration, OneTypeCharacterIsNoPartOfTheName) {
  for (const char* type : {"%", "&", "!", "#", "@", "$"}) {
    EXPECT_EQ(NameIn("Function A" + std::string(type) + "(x)"), "A") << type;
    EXPECT_EQ(NameIn("Property Get A" + std::string(type)), "A") << type;
  }
}

TEST(Declaration, IsNoneWithoutAName) {
  for (const char* line : {"Sub", "Sub ", "Function", "Property", "Property Get", "Property Get ",
                           "Public", "Public Sub", "Static"}) {
    EXPECT_EQ(NameIn(line), "") << line;
  }
}

TEST(Declaration, PropertyNeedsGetLetOrSet) {
  EXPECT_EQ(NameIn("Property A()"), "");
  EXPECT_EQ(NameIn("Property Gets A()"), "");
}

TEST(Declaration, LinesWithDeclareEndOrExitAreNone) {
  for (const char* line :
       {"Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
        "Public Declare Function GetTickCount Lib \"kernel32\" () As Long",
        "Private Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)", "End Sub", "End Function",
        "End Property", "Exit Sub", "Exit Function", "Exit Property"}) {
    EXPECT_EQ(NameIn(line), "") << line;
  }
}

TEST(Declaration, WordsThatOnlyStartLikeOneAreNone) {
  for (const char* line :
       {"Subtotal = 1", "Functional A", "Sub_A B", "PublicSub A()", "Publicly Sub A()",
        "Private x As Long", "Static x As Long", "Public Const A = 1", "Public Event Sub_Done()",
        "Call Sub1(x)", "x = Sub A()", "' Sub A()", "Rem Sub A()", "10 Sub A()", ""}) {
    EXPECT_EQ(NameIn(line), "") << line;
  }
}

}  // namespace declaration_test
}  // namespace brimwork
