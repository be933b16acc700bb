#include "fields/FieldFixture.h"

#include <cstdio>
#include <cstdlib>

#include "core/RunState.h"
#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "core/QvAtom.h"
#include "scene/QvFieldTable.h"
#include "fields/FieldFactory.h"
#include "reader/QvSceneInput.h"
#include "writer/SceneWriter.h"

namespace lumeric {

void FieldFixture::SetUp() {
  theContext.setView(&view_);
  indentLevel = 0;
  precisionQuantum = 0.0001;
}

void FieldFixture::TearDown() {
  theContext.setView(nullptr);
  indentLevel = 0;
  precisionQuantum = 0.0001;
  freeAllTerms();
}

std::unique_ptr<QvField> FieldFixture::make(const char* typeName) {
  QvField* field = createField(QvAtom(typeName));
  EXPECT_NE(field, nullptr) << typeName;
  return std::unique_ptr<QvField>(field);
}

bool FieldFixture::read(QvField& field, const std::string& value) {
  std::string text = "#VRML V1.0 ascii\n" + value + "\n";
  FILE* file = fmemopen(const_cast<char*>(text.data()), text.size(), "r");
  if (file == nullptr) return false;
  QvSceneInput input;
  input.setFile(file);
  bool ok = field.readValue(&input);
  std::fclose(file);
  return ok;
}

std::unique_ptr<QvField> FieldFixture::holding(const char* typeName, const std::string& value) {
  std::unique_ptr<QvField> field = make(typeName);
  if (field != nullptr) {
    EXPECT_TRUE(read(*field, value)) << typeName << " " << value;
  }
  return field;
}

std::string FieldFixture::written(QvField& field) {
  char* buffer = nullptr;
  size_t size = 0;
  FILE* out = open_memstream(&buffer, &size);
  {
    SceneWriter writer(out);
    writer.setLevel(indentLevel);
    field.write(writer);
    indentLevel = writer.level();
  }
  std::fclose(out);
  std::string text(buffer, size);
  std::free(buffer);
  return text;
}

Messages FieldFixture::takeMessages() {
  Messages texts;
  for (const RecordingView::Message& m : view_.messages()) {
    EXPECT_EQ(m.flag, 1) << m.text;
    texts.push_back(m.text);
  }
  view_.clear();
  return texts;
}

FieldExpression* FieldFixture::at() {
  expressions_.emplace_back();
  expressions_.back().line = kAtLine;
  return &expressions_.back();
}

Term* FieldFixture::term(const std::string& text) {
  expressions_.emplace_back();
  FieldExpression* e = &expressions_.back();
  e->setText(text.c_str());
  return evaluateTerm(e);
}

}  // namespace lumeric
