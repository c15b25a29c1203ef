#include "tests/support/EditorFixture.h"

namespace {

using Input = EditorFixture;

void show() {
  EdSession::instance().print(L"[T]");
}

std::unique_ptr<EdScriptSource> script(std::string bytes) {
  return std::make_unique<EdScriptSource>(L"s.scr", std::move(bytes));
}

CString next(EdInput& input) {
  const auto line = input.read(L"?");
  return line ? line->text : CString(L"(end)");
}

} // namespace

TEST_F(Input, ScriptsComeBeforeTypedLinesAndGiveWayAtTheirEnd) {
  auto& input = session().input();
  frontEnd.type({L"typed"});
  input.push(script("outer 1\nouter 2"));
  EXPECT_EQ(L"outer 1", next(input));
  input.push(script("inner"));
  EXPECT_EQ(L"inner", next(input));
  EXPECT_EQ(L"outer 2", next(input));
  EXPECT_EQ(2, input.last().number);
  EXPECT_EQ(L"s.scr", input.last().source);
  EXPECT_EQ(L"typed", next(input));
  EXPECT_EQ(L"(end)", next(input));
}

TEST_F(Input, LineEndsAndByteOrderMarksAreNoText) {
  auto& input = session().input();
  input.push(script("\xEF\xBB\xBF"
                    "a\r\n\r\nb\n"));
  EXPECT_EQ(L"a", next(input));
  EXPECT_EQ(L"", next(input));
  EXPECT_EQ(L"b", next(input));
  EXPECT_EQ(L"(end)", next(input));
}

TEST_F(Input, AScriptThatIsNotUtf8IsGbk) {
  session().input().push(script("\xB2\xC9\xC5\xAF"));
  EXPECT_EQ(L"采暖", next(session().input()));
}

TEST_F(Input, CommentsAreToldAndPassedOver) {
  auto& input = session().input();
  input.push(script("; says\nline\n; free"));
  EXPECT_EQ(L"line", next(input));
  ASSERT_EQ(2u, frontEnd.prompts.size());
  EXPECT_EQ(L"", frontEnd.prompts[0]);
  EXPECT_EQ(L"; free", input.read(L"?", true)->text) << "free text may begin with a semicolon";
}

TEST_F(Input, ScriptsCanBeReadWithoutTheUser) {
  auto& input = session().input();
  const auto any = [](const CString&) { return true; };
  frontEnd.type({L"typed"});
  input.push(script("first\nsecond\n; said"));
  EXPECT_EQ(L"first", input.readIf(L"?", any, EdInput::From::scripts)->text);
  EXPECT_FALSE(input.readIf(
      L"?", [](const CString&) { return false; }, EdInput::From::scripts));
  EXPECT_EQ(L"second", input.readIf(L"?", any, EdInput::From::scripts)->text) << "it was left";
  EXPECT_FALSE(input.readIf(L"?", any, EdInput::From::scripts));
  EXPECT_EQ(L"typed", next(input)) << "nobody was asked for it before";
}

TEST_F(Input, ALineThatDoesNotFitStaysForTheNextReader) {
  auto& input = session().input();
  frontEnd.type({L"typed"});
  EXPECT_FALSE(input.readIf(L"?", [](const CString&) { return false; }));
  input.push(script("first"));
  EXPECT_FALSE(input.readIf(L"?", [](const CString&) { return false; }));
  EXPECT_EQ(L"first", next(input));
  EXPECT_EQ(L"typed", next(input));
}

TEST_F(Input, HugeLinesAreRefusedAndPassedOver) {
  session().input().push(script(std::string(1 << 20, 'x') + "\nok"));
  frontEnd.type({L"typed"});
  EXPECT_EQ(L"typed", next(session().input())) << "the script stops there";
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_EQ(1, frontEnd.refusals[0].number);
  EXPECT_TRUE(frontEnd.refusals[0].scriptStopped);
}

TEST_F(Input, AScriptStopsAtALineThatCannotBeObeyed) {
  define(L"T", show);
  session().input().push(script("T\nNOSUCH\nT\n"));
  session().run();
  EXPECT_EQ(L"[T]", frontEnd.output);
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_EQ(2, frontEnd.refusals[0].number);
  EXPECT_EQ(L"NOSUCH", frontEnd.refusals[0].line);
}

TEST_F(Input, TypedLinesGoOnBehindOneThatCannotBeObeyed) {
  define(L"T", show);
  frontEnd.type({L"NOSUCH", L"T"});
  session().run();
  EXPECT_EQ(L"[T]", frontEnd.output);
  EXPECT_EQ(1, session().refusedLines());
}

TEST_F(Input, SentTextSplitsAtBlanksOutsideQuotes) {
  EXPECT_EQ((std::deque<CString>{L"LINE", L"0,0", L"a b", L""}),
            EdAnswerSource::split(L"LINE 0,0\n\"a b\"  "));
  EXPECT_EQ((std::deque<CString>{L"regen"}), EdAnswerSource::split(L"regen\n"));
  EXPECT_EQ((std::deque<CString>{L"regen"}), EdAnswerSource::split(L"regen"));
}
