// The small window in which the user says what to look for; it stays open beside the text.
#pragma once

#include <functional>

#include "bench/screen/fonts.h"
#include "bench/screen/native_window.h"
#include "bench/screen/text_search.h"

namespace brimwork::bench {

class FindDialog : public NativeWindow {
 public:
  /// find: looks for the query's text.
  FindDialog(HWND owner, const Fonts& fonts, std::function<void(const SearchQuery&)> find);

  /// wanted: what the field begins with; "" leaves what is there.
  void Open(const std::wstring& wanted);

  /// What was looked for last.
  const SearchQuery& Query() const { return query_; }

  /// True when the key was for the dialog.
  bool TakesKey(MSG& message) const;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void AddFields(const Fonts& fonts);
  void Look();

  std::function<void(const SearchQuery&)> find_;
  SearchQuery query_;
};

}  // namespace brimwork::bench
