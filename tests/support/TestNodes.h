// Small helpers for unit tests that need nodes and inputs.
#ifndef LUMERIC_TESTS_SUPPORT_TESTNODES_H
#define LUMERIC_TESTS_SUPPORT_TESTNODES_H

#include <cstdio>
#include <string>

#include "scene/QvNode.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

// A leaf without fields.
class PlainTestNode : public QvNode {
 public:
  QvFieldTable* getFieldTable() override { return nullptr; }
  void evaluate(QvGroupNode*, bool) override {}
  void write(SceneWriter&) override {}
  bool readInstance(QvSceneInput*) override { return true; }
  const char* getClassName() const override { return "PlainTestNode"; }
};

// A scene input reading from a copy of `text`.
class TextInput {
 public:
  explicit TextInput(const std::string& text) : text_(text) {
    file_ = fmemopen(text_.empty() ? nullptr : &text_[0], text_.size(), "r");
    if (file_ == nullptr) file_ = std::tmpfile();
    input_.setFile(file_);
  }
  ~TextInput() { std::fclose(file_); }
  TextInput(const TextInput&) = delete;
  TextInput& operator=(const TextInput&) = delete;

  QvSceneInput* operator->() { return &input_; }
  QvSceneInput* get() { return &input_; }

 private:
  std::string text_;
  FILE* file_;
  QvSceneInput input_;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_SUPPORT_TESTNODES_H
