// Run time is about linear in the length of repetitive texts.
#include <ctime>

#include "base/failure.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "connection/qvrcfp.h"
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "dialect/statements.h"
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/csql20.h"
#include "query/definition_text.h"
#include "query/joins.h"
#include "query/search/search.h"
#include "query/usql20.h"
#include "script/command_splitter.h"
#include "script/script_preparation.h"
#include "services/base32.h"
#include "services/script_text.h"

namespace qvr::tests {
namespace {

// Eight times the length is eight times the work, or sixty-four where every unit looks at every other one. Only what
// takes long enough to be noticed is compared.
constexpr std::size_t kShort = 1 << 13, kLong = kShort * 8;
constexpr double kNoticed = 0.5, kMostTimes = 24;
constexpr int kMeasurements = 5;

struct NoEvents final : ScriptEvents {
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

Text repeated(TextView head, TextView piece, TextView tail, std::size_t units) {
  Text text(head);
  while (!piece.empty() && text.size() + piece.size() <= units) text += piece;
  return text += tail;
}

// The pieces at each mark as a list of texts.
Value list_of(const Text& text) {
  Array list;
  for (const TextView piece : split(text, u"|")) list.items.emplace_back(Text(piece));
  return list;
}

QueryRequest request_of(Engine engine) {
  QueryRequest request;
  request.MotorBD = engine;
  request.ColumnasSELECT = Array{{Value(u"X"), Value(u"T")}, 0, 1};
  request.TablasFROM = u"t";
  return request;
}

void search(const Text& text) {
  for (const char16_t type : {u'T', u'M', u'N', u'F', u'L'}) {
    const auto found = query::interpret_search(Engine::SqlServer, {u"X", type}, text, u"X");
    if (found) query::interpret_search(Engine::SqlServer, {u"X", type}, TextView(found->criterion).substr(2), u"X");
  }
}

void split_commands(const Text& text) {
  CommandSplitter splitter(text);
  while (splitter.next()) continue;
  count_separators(text);
}

void prepare(const Text& text) {
  NoEvents events;
  with_accounts(with_encryption(text, events), Engine::Oracle, {u"[", u"Clave", u"]", u"UsuarioQVRCli]", u"x"}, events);
}

void decode(const Text& text) {
  FakeFiles files;
  files.single_byte_page = true;
  services::with_whole_line_breaks(services::decoded_script(to_utf8(text), files));
  services::from_base32(text);
}

void define(const Text& text) {
  cSQL20 query;
  query.CrearDesdeTextoDefinicion(query::DefinitionWriter(text).finished());
  uSQL20 all;
  all.CrearDesdeTextoDefinicion(text);
}

void take_criterion(const Text& text) {
  cSQL20 query;
  query.Crear(request_of(Engine::Jet));
  query.CriterioActualCompleto(text);
  query.AmpliarCondicionWhere(text, text);
  query.AmpliarCondicionWhere(text, text);
  query.TOP(5);
  query.AdoptaComoOriginal(true, true, true);
  query.CriterioActualCompleto(query.CriterioActualCompleto());
  query.CrearDesdeTextoDefinicion(query.TextoDefinicion());
}

void write_literals(const Text& text) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    dialect::PatronLikeMotor(engine, text, true, true);
    dialect::ExpSQL(engine, text);
  }
  const QVRcfp cfp;
  for (const TextView code : {u"T", u"N", u"F", u"L"}) cfp.TextoAValor(code, text);
  dialect::NumeroDesdeTexto(text);
}

void write_lists(const Text& text) {
  const Value list = list_of(text);
  dialect::SqlInsert2(Engine::Oracle, u"t", list, list);
  dialect::SqlUPDATE(Engine::SqlServer, u"t", u"k", 1, list, list);
  query::ConstruirJoins(u"a,b,c", list);
  QueryRequest request = request_of(Engine::Oracle);
  request.ColumnasSELECT = list;
  request.RelacionTablas = list;
  cSQL20 query;
  query.Crear(request);
  query.CrearDesdeTextoDefinicion(query.TextoDefinicion());
}

constexpr std::string_view kKinds = "sgpdtclw";
constexpr void (*kCalls[])(const Text&) = {search, split_commands, prepare,        decode,
                                           define, take_criterion, write_literals, write_lists};

// The processor's seconds for this text. They vary with what else the machine does, so that a text is only found too
// dear when it is in each of several measurements.
double cost(std::size_t kind, const Text& text) {
  const std::clock_t begun = std::clock();
  try {
    kCalls[kind](text);
  } catch (const RuntimeFailure&) {
    // What is refused has to be refused soon.
  }
  return static_cast<double>(std::clock() - begun) / CLOCKS_PER_SEC;
}

}  // namespace

// Which functions, what the text begins with, what is repeated and what is behind.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  const std::size_t kind = input.choice(kKinds);
  const Text head = input.text(), piece = input.text(), tail = input.text();
  const Text short_text = repeated(head, piece, tail, kShort), long_text = repeated(head, piece, tail, kLong);
  bool as_its_length_says = false;
  for (int i = 0; i < kMeasurements && !as_its_length_says; ++i) {
    const double short_cost = cost(kind, short_text), long_cost = cost(kind, long_text);
    as_its_length_says = long_cost < kNoticed || long_cost < kMostTimes * short_cost;
  }
  require(as_its_length_says, "a long text costs what its length says", {head, piece, tail});
  static_cast<void>(fuzz_thread().take_boxes());
}

}  // namespace qvr::tests
