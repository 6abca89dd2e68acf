// A form with one control of most kinds, which notes its events by name: "txtName Change".
#pragma once

#include <string>
#include <vector>

#include "environment/controls.h"
#include "memory/memory_form_host.h"
#include "memory/memory_native_windows.h"

namespace brimwork {

inline constexpr std::string_view kSampleItems[] = {"Red", "Green", "Blue"};
inline constexpr TabLayout kSampleTabs[] = {{"Fir&st", "The first tab"}, {"Se&cond"}};
inline constexpr ImageLayout kSampleImages[] = {{"Indent", "indent.bmp"}, {"Number", "number.bmp"}};

inline constexpr ControlLayout kSampleControls[] = {
    {.name = "lblName", .place = {8, 8, 60, 13}, .text = "&Name:", .tabIndex = 0},
    {.name = "txtName",
     .place = {72, 6, 100, 21},
     .text = "Anne",
     .tabIndex = 1,
     .toolTip = "Who wrote it",
     .maxLength = 10},
    {.name = "txtNotes",
     .place = {8, 32, 164, 60},
     .text = "One\r\nTwo",
     .tabIndex = 2,
     .isMultiLine = true,
     .scrollBars = ScrollBars::kVertical},
    {.name = "chkReady", .place = {8, 96, 80, 17}, .text = "&Ready", .tabIndex = 3},
    {.name = "fraColor", .place = {8, 120, 164, 60}, .text = "C&olour", .tabIndex = 4},
    {.name = "optColor",
     .index = 0,
     .container = {"fraColor"},
     .place = {8, 16, 100, 17},
     .text = "R&ed",
     .tabIndex = 5,
     .isChecked = true},
    {.name = "optColor",
     .index = 1,
     .container = {"fraColor"},
     .place = {8, 36, 100, 17},
     .text = "&Green",
     .tabIndex = 6},
    {.name = "lstWords", .place = {180, 6, 100, 86}, .tabIndex = 7, .items = kSampleItems},
    {.name = "cmbWords", .place = {180, 96, 100, 21}, .tabIndex = 8, .items = kSampleItems},
    {.name = "tabPages", .place = {180, 120, 100, 60}, .tabIndex = 9, .tabs = kSampleTabs},
    {.name = "picBar", .place = {8, 184, 104, 24}, .foreColor = Rgb(0, 0, 255)},
    {.name = "imgLogo", .place = {120, 184, 24, 24}, .picture = "logo.bmp"},
    {.name = "cmdOk", .place = {8, 212, 75, 23}, .text = "OK", .tabIndex = 10, .isDefault = true},
    {.name = "cmdLeave",
     .place = {90, 212, 75, 23},
     .text = "&Leave",
     .tabIndex = 11,
     .causesValidation = false,
     .isCancel = true},
    {.name = "sbStatus", .place = {0, 240, 290, 20}, .text = "Ready"},
    {.name = "tmrClock", .isEnabled = false, .interval = 100},
    {.name = "imlFaces", .images = kSampleImages},
};

inline constexpr FormLayout kSampleLayout = {.name = "frmSample",
                                             .caption = "Sample",
                                             .width = 290,
                                             .height = 260,
                                             .border = FormBorder::kSizable,
                                             .controls = kSampleControls};

class frmSample : public Form {
 public:
  explicit frmSample(FormHost& host) : Form(host, kSampleLayout) {
    NoteFocus(txtName);
    NoteFocus(txtNotes);
    NoteFocus(chkReady);
    NoteFocus(cmdLeave);
    txtName.OnValidate = [this](bool& cancel) {
      Note("txtName Validate");
      cancel = refusesName;
    };
    txtName.OnChange = [this] { Note("txtName Change " + txtName.Text.Get()); };
    txtNotes.OnChange = [this] { Note("txtNotes Change"); };
    chkReady.OnClick = [this] { Note("chkReady Click"); };
    optColor.Handle(&OptionButton::OnClick,
                    [this](int index) { Note("optColor Click " + std::to_string(index)); });
    lstWords.OnClick = [this] { Note("lstWords Click"); };
    cmbWords.OnClick = [this] { Note("cmbWords Click"); };
    tabPages.OnClick = [this] { Note("tabPages Click"); };
    cmdOk.OnClick = [this] { Note("cmdOk Click"); };
    cmdLeave.OnClick = [this] { Note("cmdLeave Click"); };
    lblName.OnClick = [this] { Note("lblName Click"); };
    tmrClock.OnTimer = [this] {
      Note("tmrClock Timer");
      if (onTimer) onTimer();
    };
  }

  std::vector<std::string> events;
  bool refusesName = false;
  std::function<void()> onLoad, onUnload, onTimer;

  Label lblName{*this, "lblName"};
  TextBox txtName{*this, "txtName"};
  TextBox txtNotes{*this, "txtNotes"};
  CheckBox chkReady{*this, "chkReady"};
  Frame fraColor{*this, "fraColor"};
  ControlArray<OptionButton, 2> optColor{*this, "optColor"};
  ListBox lstWords{*this, "lstWords"};
  ComboBox cmbWords{*this, "cmbWords"};
  TabStrip tabPages{*this, "tabPages"};
  PictureBox picBar{*this, "picBar"};
  Image imgLogo{*this, "imgLogo"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdLeave{*this, "cmdLeave"};
  StatusBar sbStatus{*this, "sbStatus"};
  Timer tmrClock{*this, "tmrClock"};
  ImageList imlFaces{*this, "imlFaces"};

 protected:
  void Form_Load() override {
    Note("Form_Load");
    if (onLoad) onLoad();
  }
  void Form_Resize() override { Note("Form_Resize"); }
  void Form_Unload() override {
    Note("Form_Unload");
    if (onUnload) onUnload();
  }

 private:
  void Note(std::string event) { events.push_back(std::move(event)); }
  void NoteFocus(Control& control) {
    control.OnGotFocus = [this, &control] { Note(std::string(control.Name()) + " GotFocus"); };
    control.OnLostFocus = [this, &control] { Note(std::string(control.Name()) + " LostFocus"); };
  }
};

/// The sample form, shown to nobody; the events of being shown are forgotten.
struct ShownSample {
  ShownSample() {
    form.Show();
    form.events.clear();
  }

  MemoryNativeWindows windows;
  MemoryFormHost host{windows};
  frmSample form{host};
};

}  // namespace brimwork
