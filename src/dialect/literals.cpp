#include "dialect/literals.h"

#include <cmath>

#include "base/date_text.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "dialect/by_engine.h"
#include "session/thread_state.h"
#include "session/value_convert.h"

namespace qvr::dialect {
namespace {

constexpr TextView kNull = u"Null";

struct DateForm {
  ByEngine opener;
  TextView client_mask, oracle_mask;
};

// The blanks are part of the contract, as callers concatenate these texts without adding any: SQL Server has them
// inside the opening delimiter, Oracle outside.
constexpr DateForm kDate{{u"#", u"{ d '", u" TO_DATE('"}, u"yyyy-mm-dd", u"YYYY-MM-DD"};
constexpr DateForm kTime{{u"#", u"{ t '", u" TO_DATE('"}, u"hh:nn:ss", u"HH24:MI:SS"};
constexpr DateForm kDateTime{{u"#", u"{ ts '", u" TO_DATE('"}, u"yyyy-mm-dd hh:nn:ss", u"YYYY-MM-DD HH24:MI:SS"};

// A date, or a text that the locale reads as one; nothing for numbers and for dates out of range.
std::optional<Date> as_date(const Value& value) {
  std::optional<Date> date;
  if (const Date* held = value.as<Date>()) date = *held;
  if (const Text* text = value.as<Text>()) date = thread_state().platform().locale.parse_date(*text);
  return date && has_calendar_time(*date) ? date : std::nullopt;
}

Text delimited(Engine engine, const DateForm& form, Date date) {
  const auto opener = pick(engine, form.opener);
  if (!opener) return undefined_engine(engine);
  const Text formatted = formatted_date(date, form.client_mask);
  const bool oracle = engine == Engine::Oracle;
  const TextView closer = *pick(engine, {u"#", u"'}", u"','"});
  return join({*opener, formatted, closer, oracle ? form.oracle_mask : TextView(), oracle ? u"') " : u""});
}

Text date_literal(Engine engine, const DateForm& form, const Value& value) {
  const auto date = as_date(value);
  return date ? delimited(engine, form, *date) : Text(kNull);
}

Text text_literal(Engine engine, const Text& text) {
  constexpr std::size_t kLongestInOracle = 4000;
  if (equal_no_case(text, u"AhoraSQL")) return AhoraSQL(engine);
  // Truncated before the quotes are doubled. These are characters; the engine's limit is as many bytes, which only the
  // database's character set tells.
  return ComillasSQL(engine == Engine::Oracle ? TextView(text).substr(0, kLongestInOracle) : TextView(text));
}

// A leading blank in the place of the sign, as Str() of Visual Basic has it.
Text signed_number(Text digits) { return digits.starts_with(u'-') ? digits : u" " + digits; }

Text unexpected(TextView diagnostic) {
  trace({u"QVRcfp", "ExpSQL", failure_number::kTypeMismatch, diagnostic, SourcePlace::here()});
  return Text(kNull);
}

struct Literal {
  Engine engine;

  Text operator()(const Text& text) const { return text_literal(engine, text); }
  Text operator()(bool truth) const { return LogicoSQL(engine, truth); }
  Text operator()(Date date) const { return FechaSQLv(engine, date); }
  Text operator()(std::uint8_t number) const { return signed_number(decimal(number)); }
  Text operator()(std::int16_t number) const { return signed_number(decimal(number)); }
  Text operator()(std::int32_t number) const { return signed_number(decimal(number)); }
  // No engine has a literal for infinities and NaN.
  Text operator()(float number) const {
    return std::isfinite(number) ? signed_number(shortest_number(number)) : Text(kNull);
  }
  Text operator()(double number) const {
    return std::isfinite(number) ? signed_number(shortest_number(number)) : Text(kNull);
  }
  Text operator()(Currency number) const { return signed_number(shortest_number(number)); }
  Text operator()(const Decimal& number) const { return signed_number(shortest_number(number)); }
  Text operator()(Null) const { return Text(kNull); }
  Text operator()(Empty) const { return Text(kNull); }
  Text operator()(Missing) const { return Text(kNull); }
  Text operator()(std::int64_t) const { return unexpected(u"Tipo de campo inesperado en ExpSQL: LongLong"); }
  Text operator()(std::uint64_t) const { return unexpected(u"Tipo de campo inesperado en ExpSQL: ULongLong"); }
  Text operator()(const ErrorValue&) const { return unexpected(u"Tipo de campo inesperado en ExpSQL: Error"); }
  Text operator()(const ObjectRef&) const { return unexpected(u"Tipo de campo inesperado en ExpSQL: Object"); }
  Text operator()(const Array&) const { return unexpected(u"Tipo de campo inesperado en ExpSQL: Variant()"); }
};

}  // namespace

Text ComillasSQL(TextView Cadena) {
  std::size_t quotes = 0;
  for (const char16_t unit : Cadena) quotes += unit == u'\'';
  Text literal;
  literal.reserve(Cadena.size() + quotes + 2);
  literal.push_back(u'\'');
  for (const char16_t unit : Cadena) {
    if (unit == u'\'') literal.push_back(unit);
    literal.push_back(unit);
  }
  literal.push_back(u'\'');
  return literal;
}

Text ExpSQL(Engine engine, const Value& Valor) { return std::visit(Literal{engine}, Valor.storage()); }

Date first_date(Engine engine) { return date_from({engine == Engine::SqlServer ? 1753 : 100, 1, 1}).value(); }

Text LiteralFechaMotor(Engine engine, const Value& Fecha, TextView client_mask, TextView oracle_mask) {
  return date_literal(engine, {kDate.opener, client_mask, oracle_mask}, Fecha);
}

Text FechaSQL(Engine engine, const Value& Fecha) {
  return LiteralFechaMotor(engine, Fecha, kDate.client_mask, kDate.oracle_mask);
}

Text HoraSQL(Engine engine, const Value& Fecha) { return date_literal(engine, kTime, Fecha); }

Text FechaHoraSQL(Engine engine, const Value& Fecha) {
  const Text* text = Fecha.as<Text>();
  const bool now = text != nullptr && (equal_no_case(*text, u"Ahora") || equal_no_case(*text, u"AhoraSQL"));
  return now && !as_date(Fecha) ? AhoraSQL(engine) : date_literal(engine, kDateTime, Fecha);
}

Text FechaSQLv(Engine engine, const Value& Fecha) {
  const auto date = as_date(Fecha);
  if (!date) return Text(kNull);
  const double whole = std::trunc(date->days);
  // Midnight of day zero counts as a date.
  if (whole == date->days) return FechaSQL(engine, *date);
  return whole == 0 ? HoraSQL(engine, *date) : FechaHoraSQL(engine, *date);
}

Text LogicoSQL(Engine engine, bool Valor) {
  constexpr ByEngine kTrue{u"True", u"1", u"1"}, kFalse{u"False", u"0", u"0"};
  return pick_or_tell(engine, Valor ? kTrue : kFalse);
}

Text AhoraSQL(Engine engine) { return pick_or_tell(engine, {u"Now()", u"GetDate()", u"SYSDATE"}); }

Text sqlFechaSistema(Engine engine) {
  return pick_or_tell(engine, {u"SELECT TOP 1 Now() As FechaSistema FROM MsysObjects",
                               u"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values",
                               u"SELECT SYSDATE FechaSistema FROM Dual"});
}

Text sqlEsTrue(TextView Campo) { return join({u" ", Campo, u"<>0 "}); }
Text sqlEsFalse(TextView Campo) { return join({u" ", Campo, u"=0 "}); }
Text sqlFalse() { return u"0"; }

float NumeroDesdeTexto(TextView text) noexcept {
  return or_default({}, 0.0f, [&] {
    const auto number = static_cast<float>(to_number(Text(text)));
    return std::isfinite(number) ? number : 0.0f;
  });
}

}  // namespace qvr::dialect
