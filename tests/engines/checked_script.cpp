#include "engines/checked_script.h"

#include "base/utf8.h"

namespace qvr::tests {
namespace {

Text ascii(const std::string& text) { return Text(text.begin(), text.end()); }

Text hexadecimal_utf8(TextView text) {
  Text digits;
  for (const char byte : to_utf8(text)) digits += hexadecimal(static_cast<unsigned char>(byte), 2);
  return digits;
}

}  // namespace

TextView from_nothing(Engine engine) { return engine == Engine::Oracle ? u" FROM Dual" : u""; }

Text is_text(Engine engine, TextView expression, TextView expected) {
  if (expected.empty() && engine == Engine::Oracle) return join({expression, u" IS NULL"});
  return join({u"STRINGTOUTF8(", expression, u")=X'", hexadecimal_utf8(expected), u"'"});
}

CheckedScript::CheckedScript(Engine engine, int broken) : engine_(engine), broken_(broken) {
  run(u"CREATE TABLE Checks (Name VARCHAR(200), Passed INT)");
}

void CheckedScript::run(TextView statement) { text_ += to_utf8(statement) + ";\n"; }

void CheckedScript::check(const std::string& name, TextView condition) {
  ++checks_;
  const TextView passed = checks_ == broken_ ? u"0" : u"1";
  run(join({u"INSERT INTO Checks SELECT '", ascii(name), u"', CASE WHEN ", condition, u" THEN ", passed, u" ELSE 0 END",
            from_nothing(engine_)}));
}

void CheckedScript::check_text(const std::string& name, TextView expression, TextView expected) {
  check(name, is_text(engine_, expression, expected));
}

std::string CheckedScript::finished() && {
  run(u"SELECT 'FAILED', Name FROM Checks WHERE Passed<>1");
  run(u"SELECT 'COUNTED', Count(*) FROM Checks");
  return std::move(text_) + "-- ANNOUNCED " + std::to_string(checks_) + "\n";
}

}  // namespace qvr::tests
