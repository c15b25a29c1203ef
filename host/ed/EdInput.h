// The lines that answer prompts, from whoever gives them: the topmost script or string first, else the user.
// Knows the line read last, so that a refusal can name it.
#pragma once

#include "host/ed/EdLineSource.h"

#include <functional>
#include <memory>
#include <vector>

class EdFrontEnd;

struct EdLine {
  CString text;
  CString source; // the script's name, empty otherwise
  int number = 0; // in its script, or of all typed lines, from 1; 0 for text that a program gave
  bool typed = false;
};

class EdInput {
 public:
  static constexpr std::size_t kMaxScripts = 8;

  // Told why a line is not even handed on.
  using Refuser = std::function<void(const CString& reason, const CString& expected)>;

  explicit EdInput(Refuser refuser) : m_refuse(std::move(refuser)) {}
  void setFrontEnd(EdFrontEnd* frontEnd) { m_frontEnd = frontEnd; }

  void push(std::unique_ptr<EdLineSource> source);
  // Scripts that have not ended.
  std::size_t scriptDepth() const;
  std::size_t depth() const { return m_sources.size(); }
  // Drops the sources above a depth, whatever they still hold.
  void popTo(std::size_t depth);
  // Drops the sources on top that have no line left.
  void dropFinished();
  // Leaves out what is left of all scripts, if the line read last came from one. Whether it did.
  bool stopScripts();
  void clear();

  // The next line, shown as the answer to the prompt; nothing at the end of the input. A line that begins
  // with
  // ";" is told to the user and passed over, except for free text.
  std::optional<EdLine> read(const CString& prompt, bool freeText = false);
  // The next line if it fits, and is left for the next reader otherwise. From scripts alone there is nothing
  // where the user would have to type.
  enum class From { anybody, scripts };
  std::optional<EdLine> readIf(const CString& prompt, const std::function<bool(const CString&)>& fits,
                               From from = From::anybody);

  const EdLine& last() const { return m_last; }

  // While this lives, lines that programs gave as answers to prompts are passed over: a dialog is for the
  // user, or the script that stands for him.
  class UserOnly {
   public:
    explicit UserOnly(EdInput& input);
    ~UserOnly();
    UserOnly(const UserOnly&) = delete;
    UserOnly& operator=(const UserOnly&) = delete;

   private:
    EdInput& m_input;
    std::size_t m_depth;
  };

 private:
  struct Fetched {
    EdLine line;
    bool echo = true;
    bool tooLong = false;
  };
  struct Source {
    std::unique_ptr<EdLineSource> lines;
    int number = 0;
    std::optional<Fetched> unread;
    int passedOver = 0; // by how many UserOnly
  };
  Fetched cancelAll();
  std::optional<Fetched> fetch(const CString& prompt, From from);
  std::optional<Fetched> fetchNoComment(const CString& prompt, bool freeText, From from = From::anybody);
  EdLine take(const CString& prompt, const Fetched& fetched);

  Refuser m_refuse;
  EdFrontEnd* m_frontEnd = nullptr;
  std::vector<Source> m_sources;
  std::size_t m_fetchedFrom = 0; // of m_sources, for a line that was not typed
  int m_typedLines = 0;
  std::optional<Fetched> m_typedUnread;
  EdLine m_last;
};
