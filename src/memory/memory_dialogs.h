// Message boxes, the folder browser and the save dialog as plain data: what was shown is recorded,
// and the answers are given beforehand.
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

  bool GetSaveFileName(SaveFileRequest& request) override {
    saveRequests_.push_back(request);
    const std::string path = Next(savePaths_, std::string());
    if (path.empty() || path.size() >= request.file.size()) return false;
    request.file.replace(0, path.size() + 1, path + '\0');
    return true;
  }

  /// The button that answers the next message box still without an answer; OK when none is given.
  void AnswerMessage(int button) { answers_.push_back(button); }

  /// The folder picked in the next browser still without an answer; cancelled when none is given.
  void PickFolder(std::string path) { folders_.push_back(std::move(path)); }

  /// The path chosen in the next save dialog still without an answer; cancelled when none is given.
  void SaveTo(std::string path) { savePaths_.push_back(std::move(path)); }

  const std::vector<ShownMessage>& Messages() const { return messages_; }
  const std::vector<BrowseFolderRequest>& BrowseRequests() const { return browseRequests_; }
  const std::vector<SaveFileRequest>& SaveRequests() const { return saveRequests_; }

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
  std::vector<SaveFileRequest> saveRequests_;
  std::deque<std::string> savePaths_;
};

}  // namespace brimwork
