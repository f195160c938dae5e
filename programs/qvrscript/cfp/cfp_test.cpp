#include <array>
#include <functional>

#include "qvrscript/cfp/cfp.h"
#include "qvrscript/cfp/cfp_parts.h"
#include "qvrscript/connection/connection.h"

namespace qvr::script_tool {
namespace {

struct Opened {
  bool done = false;
  DatabaseFacts facts;
  FailureDetail failure;
  std::vector<services::AdoError> errors;
};

Opened open_and_ask(const Connection& connection, std::int32_t connect_timeout, const Surroundings& surroundings,
                    const std::function<void(const Opened&)>& tell) {
  Opened result;
  const auto give_up = [&](TextView why) {
    result.failure = {failure_number::kInvalidArgument, Text(why), Text(kOwnSource)};
    tell(result);
  };
  try {
    result.facts = opened_database(connection.string, connect_timeout, surroundings, give_up)->facts();
    result.done = true;
  } catch (const OpenFailure& failure) {
    result.failure = failure.detail();
    result.errors = failure.errors();
  } catch (const RuntimeFailure& failure) {
    result.failure = failure.detail();
  }
  return result;
}

bool contains(TextView text, TextView part) { return find_no_case(text, part) != TextView::npos; }

// The engine whose product this surely is; None for every other one, such as what tests use in an engine's place.
Engine engine_of_product(TextView product) {
  struct Mark {
    TextView part;
    Engine engine;
  };
  constexpr std::array kMarks{Mark{u"SQL Server", Engine::SqlServer}, Mark{u"Oracle", Engine::Oracle},
                              Mark{u"Jet", Engine::Jet}, Mark{u"Access", Engine::Jet}};
  for (const Mark& mark : kMarks) {
    if (contains(product, mark.part)) return mark.engine;
  }
  return Engine::None;
}

bool do_not_go_together(Engine engine, TextView product) {
  const Engine known = engine_of_product(product);
  return known != Engine::None && known != engine;
}

Text number_text(std::int32_t number) {
  return join({decimal(number), u" (0x", hexadecimal(static_cast<std::uint32_t>(number), 8), u")"});
}

TextView ddl_text(Ddl ddl) {
  switch (ddl) {
    case Ddl::RolledBack: return u"taken back with it";
    case Ddl::Commits: return u"commits it";
    case Ddl::Refused: return u"refused";
    case Ddl::Unknown: break;
  }
  return u"unknown";
}

std::string_view ddl_name(Ddl ddl) {
  switch (ddl) {
    case Ddl::RolledBack: return "rolled-back";
    case Ddl::Commits: return "commits";
    case Ddl::Refused: return "refused";
    case Ddl::Unknown: break;
  }
  return "unknown";
}

Text told(TextView text) { return Text(text.empty() ? u"unknown" : text); }

// As QVRcfp chooses it.
bool is_admin(const ConnectionChoice& choice, const ConnectionParameters& parameters) {
  return !choice.client && !parameters.UsuarioAdm.empty();
}

void tell_failure(const CfpChoice& cfp, const Opened& result, Console& console) {
  const FailureDetail& failure = result.failure;
  console.complain({shown_path(cfp), u": the connection cannot be opened: ", number_text(failure.number), u" ",
                    failure.description, u" (", failure.source, u")"});
  for (const services::AdoError& error : result.errors) {
    console.complain_more({u"  ", number_text(error.number), u", native ", decimal(error.native_error), u", SQL state ",
                           told(error.sql_state), u": ", error.description, u" (", error.source, u")"});
  }
}

void tell_text(const CfpTestRequest& asked, const ConnectionParameters& parameters, const Opened& result,
               Console& console) {
  const CfpChoice& cfp = *asked.connection.cfp;
  if (!result.done) return tell_failure(cfp, result, console);
  const bool admin = is_admin(asked.connection, parameters);
  const TextView user = admin ? parameters.UsuarioAdm : parameters.UsuarioCli;
  console.say({shown_path(cfp), u": connected",
               user.empty() ? u" without a user"
               : admin      ? u" as the administrator "
                            : u" as the client ",
               user},
              Colour::Green);
  console.say({u"engine:             ", title_of(parameters.MotorBD)});
  console.say({u"product:            ", told(result.facts.product)});
  console.say({u"version:            ", told(result.facts.version)});
  console.say({u"DDL in transaction: ", ddl_text(result.facts.ddl)});
  if (do_not_go_together(parameters.MotorBD, result.facts.product)) {
    console.complain({u"warning: the file says ", title_of(parameters.MotorBD), u", and behind the connection is ",
                      result.facts.product, u": the library would write SQL for the wrong engine"});
  }
}

Json json_error(const services::AdoError& error) {
  return {{"number", error.number},
          {"description", json_of(error.description)},
          {"source", json_of(error.source)},
          {"sqlState", json_of(error.sql_state)},
          {"native", error.native_error}};
}

void tell_json(const CfpTestRequest& asked, const Request& request, const ConnectionParameters& parameters,
               const Opened& result, Console& console) {
  Json document = begun_document(request, *asked.connection.cfp);
  document["account"] = is_admin(asked.connection, parameters) ? "admin" : "client";
  document["engine"] = json_engine(parameters.MotorBD);
  document["connected"] = result.done;
  if (result.done) {
    document["product"] = json_of(result.facts.product);
    document["version"] = json_of(result.facts.version);
    document["ddl"] = ddl_name(result.facts.ddl);
    document["engineFits"] = !do_not_go_together(parameters.MotorBD, result.facts.product);
  } else {
    document["failure"] = {{"number", result.failure.number},
                           {"description", json_of(result.failure.description)},
                           {"source", json_of(result.failure.source)}};
    Json errors = Json::array();
    for (const services::AdoError& error : result.errors) errors.push_back(json_error(error));
    document["errors"] = std::move(errors);
  }
  write_json(document, console);
}

}  // namespace

int cfp_test(const CfpTestRequest& asked, const Request& request, const Surroundings& surroundings, Console& console) {
  require_names(asked.connection.cfp.value());
  const auto connection = connection_of(asked.connection, surroundings, console);
  if (!connection) {
    if (request.format == Format::Json) {
      write_json({{"command", json_of(request.command)},
                  {"error", "the connection file cannot be read"},
                  {"exitCode", exit_code::kFailed}},
                 console);
    }
    return exit_code::kFailed;
  }
  const auto tell = [&](const Opened& result) {
    if (request.format == Format::Json) {
      tell_json(asked, request, *connection->parameters, result, console);
    } else {
      tell_text(asked, *connection->parameters, result, console);
    }
  };
  const Opened result = open_and_ask(*connection, asked.connection.connect_timeout, surroundings, tell);
  tell(result);
  return result.done ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
