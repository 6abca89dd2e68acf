// Message boxes and the folder browser as plain data: what was shown is recorded, and the answers
// are given beforehand.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "environment/desktop.h"

namespace brimwork {

struct ShownMessage {
  std::string prompt;
  int style = message_box::kOkOnly;
  std::string title;

  bool operator==(const ShownMessage&) const = default;
};

class MemoryDialogs : public Dialogs {
 public:
  static constexpr int kOkButton = 1;

  int MsgBox(std::string_view prompt, int style, std::string_view title) override {
    messages_.push_back({std::string(prompt), style, std::string(title)});
    return Next(answers_, kOkButton);
  }

  std::string BrowseForFolder(const BrowseFolderRequest& request) override {
    browseRequests_.push_back(request);
    return Next(folders_, std::string());
  }

  /// The button that answers the next message box still without an answer; OK when none is given.
  void AnswerMessage(int button) { answers_.push_back(button); }

  /// The folder picked in the next browser still without an answer; cancelled when none is given.
  void PickFolder(std::string path) { folders_.push_back(std::move(path)); }

  const std::vector<ShownMessage>& Messages() const { return messages_; }
  const std::vector<BrowseFolderRequest>& BrowseRequests() const { return browseRequests_; }

 private:
  template <class Answer>
  static Answer Next(std::deque<Answer>& answers, Answer otherwise) {
    if (answers.empty()) return otherwise;
    Answer next = std::move(answers.front());
    answers.pop_front();
    return next;
  }

  std::vector<ShownMessage> messages_;
  std::vector<BrowseFolderRequest> browseRequests_;
  std::deque<int> answers_;
  std::deque<std::string> folders_;
};

}  // namespace brimwork
