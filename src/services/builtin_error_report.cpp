#include "services/builtin_error_report.h"

namespace qvr::services {
namespace {

enum class Kind { DuplicateRecord, ServerNotFound };

// Native error numbers of the engines' providers for these two cases.
struct NativeError {
  Engine motor;
  std::int32_t number;
  Kind kind;
};

constexpr NativeError kNativeErrors[] = {
    {Engine::Jet, -1605, Kind::DuplicateRecord},      {Engine::Jet, -105121349, Kind::DuplicateRecord},
    {Engine::Jet, -1811, Kind::ServerNotFound},       {Engine::SqlServer, 2601, Kind::DuplicateRecord},
    {Engine::SqlServer, 2627, Kind::DuplicateRecord}, {Engine::SqlServer, 17, Kind::ServerNotFound},
    {Engine::SqlServer, 53, Kind::ServerNotFound},    {Engine::Oracle, 1, Kind::DuplicateRecord},
    {Engine::Oracle, 12154, Kind::ServerNotFound},    {Engine::Oracle, 12170, Kind::ServerNotFound},
    {Engine::Oracle, 12514, Kind::ServerNotFound},    {Engine::Oracle, 12535, Kind::ServerNotFound},
    {Engine::Oracle, 12541, Kind::ServerNotFound},
};

struct State {
  TextView sql_state;
  Kind kind;
};

constexpr State kStates[] = {
    {u"23505", Kind::DuplicateRecord}, {u"3022", Kind::DuplicateRecord}, {u"08001", Kind::ServerNotFound},
    {u"08004", Kind::ServerNotFound},  {u"08S01", Kind::ServerNotFound}, {u"IM002", Kind::ServerNotFound},
};

const Text& caption_for(const AdoError& error, Engine motor, const Captions& captions) {
  const auto caption = [&captions](Kind kind) -> const Text& {
    return kind == Kind::DuplicateRecord ? captions.duplicate_record : captions.server_not_found;
  };
  for (const NativeError& row : kNativeErrors) {
    if (row.motor == motor && row.number == error.native_error) return caption(row.kind);
  }
  for (const State& row : kStates) {
    if (equal_no_case(row.sql_state, error.sql_state)) return caption(row.kind);
  }
  return captions.unknown_error;
}

Text caption_of(const ErrorNotice& notice) {
  for (const AdoError& error : notice.errors) {
    const Text& caption = caption_for(error, notice.motor, notice.captions);
    if (caption != notice.captions.unknown_error) return caption;
  }
  return notice.captions.unknown_error;
}

Text error_line(std::int32_t number, TextView description, TextView source) {
  Text line = join({u"Error ", decimal(number), u": ", description});
  if (!source.empty()) line += join({u" (", source, u")"});
  return line;
}

}  // namespace

Text error_report_text(const ErrorNotice& notice) {
  Text text = join({caption_of(notice), kLineBreak, kLineBreak,
                    error_line(notice.failure.number, notice.failure.description, notice.failure.source)});
  for (const AdoError& error : notice.errors) {
    // The first entry of Errors is the error of the call itself, which is shown already.
    if (error.number == notice.failure.number && error.description == notice.failure.description) continue;
    text += join({kLineBreak, error_line(error.number, error.description, error.source)});
  }
  text += kLineBreak;
  if (!notice.object.empty()) {
    text += join({kLineBreak, notice.captions.object, u": ", abbreviate_for_display(notice.object)});
  }
  return text += join({kLineBreak, notice.captions.method, u": ", abbreviate_for_display(notice.label)});
}

}  // namespace qvr::services
