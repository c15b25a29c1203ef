// A front end for tests: the lines are given beforehand, and what the editor says is kept.
#pragma once

#include "host/ed/EdFrontEnd.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

class ScriptedFrontEnd : public EdFrontEnd {
 public:
  std::deque<CString> lines;
  CString output;
  std::vector<EdRefusal> refusals;
  std::vector<EdMessageBox> boxes;
  std::deque<std::size_t> answers; // of message boxes; the default where there is none
  std::vector<CString> prompts;    // of all lines that were echoed
  int regenerations = 0;
  bool cancelsTasks = false;
  int tasksTold = 0;
  int tasksEnded = 0;
  bool interrupts = false; // ahead of the next line
  std::optional<double> aperture;
  std::function<void()> beforeLine; // what the user does with the mouse before the next line
  std::function<void()> onTransients;

  void type(std::initializer_list<const wchar_t*> more) {
    lines.insert(lines.end(), more.begin(), more.end());
  }

  std::optional<CString> readLine(const CString&) override {
    if (beforeLine) std::exchange(beforeLine, nullptr)();
    if (lines.empty()) return std::nullopt;
    CString line = lines.front();
    lines.pop_front();
    return line;
  }
  void echo(const CString& prompt, const CString&, bool) override { prompts.push_back(prompt); }
  void print(const CString& text) override { output += text; }
  EdBoxResult messageBox(const EdMessageBox& box) override {
    boxes.push_back(box);
    if (answers.empty()) return {box.defaultButton, false};
    const auto answer = answers.front();
    answers.pop_front();
    return {answer, true};
  }
  void lineRefused(const EdRefusal& refusal) override { refusals.push_back(refusal); }
  bool showProgress(const CString&, double) override {
    ++tasksTold;
    return !cancelsTasks;
  }
  void progressEnded() override { ++tasksEnded; }
  bool takeInterrupt() override { return std::exchange(interrupts, false); }
  void regenerate(AcApDocument&) override { ++regenerations; }
  void transientsChanged() override {
    if (onTransients) onTransients();
  }
  std::optional<double> pickAperture() override { return aperture; }

  bool said(const wchar_t* text) const { return output.Find(text) >= 0; }
};
