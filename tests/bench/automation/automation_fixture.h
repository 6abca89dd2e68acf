// The object model of a workbench without a screen, and a client that calls it as scripts do.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>
#include <oaidl.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/automation/session.h"
#include "bench/model/bare_surface.h"
#include "bench/model/workbench.h"
#include "support/temporary_folder.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace brimwork::bench {

/// What a call answered.
struct Answer {
  HRESULT result = S_OK;
  win32::Variant value;
  EXCEPINFO exception{};
  UINT faultyArgument = 99;

  /// The run-time error's number, 0 for none.
  int ErrorNumber() const {
    return result == DISP_E_EXCEPTION ? static_cast<int>(exception.scode & 0xFFFF) : 0;
  }
};

/// A client that asks for the name and calls what it finds.
class Client {
 public:
  explicit Client(win32::ComPointer<IDispatch> object) : object_(std::move(object)) {}

  IDispatch* Raw() const { return object_.get(); }

  DISPID IdOf(std::wstring name) const {
    LPOLESTR names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }

  Answer Invoke(DISPID id, WORD kinds, std::vector<win32::Variant> arguments = {},
                std::vector<DISPID> named = {}) const {
    std::vector<VARIANTARG> reversed;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
      reversed.push_back(argument->Get());
    }
    DISPPARAMS parameters{reversed.data(), named.data(), static_cast<UINT>(reversed.size()),
                          static_cast<UINT>(named.size())};
    Answer answer;
    answer.result =
        object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kinds, &parameters,
                        answer.value.Receive(), &answer.exception, &answer.faultyArgument);
    return answer;
  }

  /// As a script calls, which cannot tell methods from properties.
  Answer Call(const wchar_t* name, std::vector<win32::Variant> arguments = {}) const {
    return Invoke(IdOf(name), DISPATCH_METHOD | DISPATCH_PROPERTYGET, std::move(arguments));
  }

  Answer Put(const wchar_t* name, win32::Variant value, WORD kind = DISPATCH_PROPERTYPUT) const {
    return Invoke(IdOf(name), kind, {std::move(value)}, {DISPID_PROPERTYPUT});
  }

  /// The object that a call answers; fails the test when it answers none.
  Client Object(const wchar_t* name, std::vector<win32::Variant> arguments = {}) const {
    const Answer answer = Call(name, std::move(arguments));
    EXPECT_EQ(answer.result, S_OK) << win32::Narrow(name);
    return Client(answer.value.ToObject());
  }

  std::string Text(const wchar_t* name, std::vector<win32::Variant> arguments = {}) const {
    const Answer answer = Call(name, std::move(arguments));
    EXPECT_EQ(answer.result, S_OK) << win32::Narrow(name);
    return answer.value.ToText();
  }

  long Number(const wchar_t* name, std::vector<win32::Variant> arguments = {}) const {
    const Answer answer = Call(name, std::move(arguments));
    EXPECT_EQ(answer.result, S_OK) << win32::Narrow(name);
    return answer.value.ToLong();
  }

 private:
  win32::ComPointer<IDispatch> object_;
};

class NoAddIns : public AddInList {
 public:
  std::vector<std::shared_ptr<AddInEntry>> Entries() override { return {}; }
  void Update() override {}
};

class AutomationTest : public ::testing::Test {
 protected:
  ~AutomationTest() override { session->End(); }

  /// Opens a project of one module in a code window.
  void OpenModule(const std::string& text) {
    const auto file = folder / "Parts.bas";
    WriteBytes(file, "Attribute VB_Name = \"Parts\"\r\n" + text);
    workbench.Open(file);
    workbench.PaneOf(workbench.Projects().front()->Components().front());
  }

  Client Vbe() { return Client(session->Vbe()); }
  Client Pane() { return Vbe().Object(L"ActiveCodePane"); }
  Client Module() { return Pane().Object(L"CodeModule"); }
  Client Bars() { return Vbe().Object(L"CommandBars"); }

  TemporaryFolder folder;
  Workbench workbench;
  BareSurface surface;
  NoAddIns addIns;
  std::shared_ptr<Session> session = Session::Open(workbench, surface, addIns);
};

}  // namespace brimwork::bench
