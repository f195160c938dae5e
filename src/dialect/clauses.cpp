#include "dialect/clauses.h"

#include "base/failure.h"
#include "dialect/lists.h"
#include "session/message_box.h"
#include "session/value_convert.h"

namespace qvr::dialect {
namespace {

Text row_limit(Engine engine, std::int32_t count, bool prepend_and, TextView opener, TextView closer) {
  if (count < 1 || engine != Engine::Oracle) return {};
  return join({prepend_and ? u" And " : u" ", opener, decimal(count), closer});
}

// CASE and DECODE: the pieces around and between the elements.
struct CaseForm {
  TextView opener, before_value, before_result, before_default, closer;
};
constexpr CaseForm kCase{u" CASE ", u" WHEN ", u" THEN ", u" ELSE ", u" END "};
constexpr CaseForm kDecode{u" DECODE(", u",", u",", u",", u") "};

Text value_map(const CaseForm& form, TextView field, const Value& pairs) {
  const Array& elements = list_in(pairs);
  if (elements.items.empty()) throw RuntimeFailure(failure_number::kSubscript);
  Text text = join({form.opener, field});
  for (std::size_t i = 0; i < elements.items.size(); ++i) {
    const bool result = i % 2 == 1, alone = !result && i + 1 == elements.items.size();
    text += result ? form.before_result : alone ? form.before_default : form.before_value;
    text += to_text(elements.items[i], Decimals::Point);
  }
  return text += form.closer;
}

}  // namespace

Text ClausulaTop(Engine engine, std::int32_t count) {
  if (count < 1 || (engine != Engine::Jet && engine != Engine::SqlServer)) return {};
  return join({u" TOP ", decimal(count), u" "});
}

Text sqlRowNum(Engine engine, std::int32_t count, bool prepend_and) {
  return row_limit(engine, count, prepend_and, u"RowNum<=", u" ");
}

Text CondicionRowNum(Engine engine, std::int32_t count, bool prepend_and) {
  return row_limit(engine, count, prepend_and, u"(RowNum<=", u") ");
}

Text ClausulaAlias(Engine engine, TextView alias) {
  const AliasQuotes quotes = alias_quotes(engine);
  return quotes.known() ? join({quotes.opener, alias, quotes.closer}) : Text();
}

AliasQuotes alias_quotes(Engine engine) {
  return {pick(engine, {u" As [", u" As [", u" \""}).value_or(u""), pick(engine, {u"]", u"]", u"\""}).value_or(u"")};
}

Text sqlConcatenar(Engine engine, const Value& Cadenas) {
  const TextView concatenation = pick(engine, {u" & ", u" + ", u" || "}).value_or(u"");
  const Array& elements = list_in(Cadenas);
  if (elements.items.empty() && !concatenation.empty()) throw CallerFailure(failure_number::kInvalidArgument);
  Text text = u" ";
  for (std::size_t i = 0; i < elements.items.size(); ++i) {
    if (i > 0) text += concatenation;
    text += to_text(elements.items[i], Decimals::Point);
  }
  return text += u" ";
}

Text sqlEsNulo(Engine engine, TextView field, TextView alternative) {
  switch (engine) {
    case Engine::Jet: return join({u" IIf(IsNull(", field, u"),", alternative, u",", field, u") "});
    case Engine::SqlServer: return join({u" IsNull(", field, u",", alternative, u") "});
    case Engine::Oracle: return join({u" NVL(", field, u",", alternative, u") "});
    default: return {};
  }
}

Text sqlCASE(Engine engine, TextView field, const Value& pairs) {
  switch (engine) {
    case Engine::Jet: return tell(u"Funci\u00f3n CASE no implementada para Motor Jet"), Text();
    case Engine::SqlServer: return value_map(kCase, field, pairs);
    case Engine::Oracle: return value_map(kDecode, field, pairs);
    default: return {};
  }
}

}  // namespace qvr::dialect
