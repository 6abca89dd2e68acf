#include "environment/labels.h"

#include "environment/form.h"

namespace brimwork {

void Label::PressAccessKey(char /*key*/) { Parent().FocusBehind(*this); }

void Frame::PressAccessKey(char /*key*/) { Parent().FocusBehind(*this); }

}  // namespace brimwork
