#include "qvrscript/command_line/command_line.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <span>

#include "base/utf8.h"
#include "qvrscript/command_line/completion.h"
#include "qvrscript/command_line/examples.h"
#include "qvrscript/command_line/man_page.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/engines.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

Text text_of(const std::string& word) {
  auto text = from_utf8(word);
  if (!text) throw UsageFailure({u"an argument is no UTF-8"});
  return std::move(*text);
}

// An option with a text; `into` is a Text or an optional one.
template <class Into>
CLI::Option* add_text(CLI::App& app, const char* name, const char* value, const char* description, Into& into) {
  return app
      .add_option_function<std::string>(
          name, [&into](const std::string& word) { into = text_of(word); }, description)
      ->option_text(value);
}

// An option with one of some words.
template <class Into, class Choice>
CLI::Option* add_choice(CLI::App& app, const char* name, const char* description, Into& into,
                        std::vector<std::pair<std::string, Choice>> choices) {
  std::string words;
  for (const auto& choice : choices) words += (words.empty() ? "" : "|") + choice.first;
  const auto take = [&into, choices, words, name](const std::string& word) {
    const auto found = std::ranges::find_if(choices, [&](const auto& each) {
      return equal_no_case(text_of(each.first), text_of(word));
    });
    if (found == choices.end()) {
      throw UsageFailure({u"no such value of ", text_of(name), u": ", text_of(word), u" (", text_of(words), u")"});
    }
    into = found->second;
  };
  return app.add_option_function<std::string>(name, take, description)->option_text(words);
}

template <class Into>
CLI::Option* add_engine(CLI::App& app, const char* description, Into& into) {
  std::vector<std::pair<std::string, Engine>> engines;
  for (const Engine engine : kEngines) engines.emplace_back(to_utf8(engine_word(engine)), engine);
  return add_choice(app, "--engine", description, into, std::move(engines));
}

std::int32_t version_of(TextView value) {
  if (value.size() != 5 || !all_digits(value) || value.starts_with(u'0')) {
    throw UsageFailure({u"no version: ", value, u" (five digits, the first no zero)"});
  }
  std::int32_t version = 0;
  for (const char16_t digit : value) version = version * 10 + (digit - u'0');
  return version;
}

// A time limit alone is no connection.
void drop_without_source(std::optional<ConnectionChoice>& connection) {
  if (connection && !connection->names_source()) connection.reset();
}

std::int32_t seconds_of(TextView value) {
  constexpr std::size_t kMostDigits = 5;  // more than a day
  if (!all_digits(value) || value.size() > kMostDigits) {
    throw UsageFailure({u"no number of seconds: ", value, u" (0 to 99999)"});
  }
  std::int32_t seconds = 0;
  for (const char16_t digit : value) seconds = seconds * 10 + (digit - u'0');
  return seconds;
}

// Its characters would be taken for more than one name.
void require_plain_name(TextView name) {
  if (name.empty() || name.find_first_of(u"*?/\\:") != TextView::npos) {
    throw UsageFailure({u"no name of a definition, an application or a file: ", name});
  }
}

constexpr const char* kFilesGroup = "Files";
constexpr const char* kConnectionGroup = "Connection (one of the first three)";
constexpr const char* kRunGroup = "Run";
constexpr const char* kOutputGroup = "Output";
constexpr const char* kTextsGroup = "Texts that replace placeholders (else those of the connection file)";

// Only what this program says of an option itself.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() { column_width(34); }
  std::string make_option_opts(const CLI::Option* option) const override {
    const std::string& text = option->get_option_text();
    return text.empty() ? text : " " + text;
  }
};

// CLI11 only tells that a command is missing.
void require_commands(const CLI::App& app, const std::vector<std::string>& words, std::size_t at) {
  const bool has_commands = !app.get_subcommands([](const CLI::App*) { return true; }).empty();
  if (!has_commands || at >= words.size() || words[at].starts_with('-')) return;
  const auto commands = app.get_subcommands([&](const CLI::App* each) { return each->get_name() == words[at]; });
  if (commands.empty()) throw UsageFailure({u"no such command: ", text_of(words[at])});
  require_commands(*commands.front(), words, at + 1);
}

}  // namespace

struct CommandLine::Description {
  CLI::App app{"Looks over, installs, updates and runs scripts (.cfc) of SQL commands, each followed by a GO line",
               "qvrscript"};
  Request request;
  RunRequest run;
  LoadRequest install, update;
  CheckRequest check;
  CfpNewRequest cfp_new;
  CfpShowRequest cfp_show;
  CfpCheckRequest cfp_check;
  CfpRekeyRequest cfp_rekey;
  CfpTestRequest cfp_test;
  DoctorRequest doctor;

  Description();
  CLI::App& add_command(CLI::App& parent, const char* name, const char* what, const char* examples);
  void add_output(CLI::App& command, std::vector<std::pair<std::string, Format>> formats);
  void add_cfp(CLI::App& command, CfpChoice& cfp);
  void add_connection(CLI::App& command, std::optional<ConnectionChoice>& connection);
  void add_run_options(CLI::App& command, RunOptions& options);
  void add_run();
  void add_load(LoadRequest& load, const char* name, const char* what, const char* examples);
  void add_check();
  void add_cfp_commands();
  void add_doctor();
  void add_others();
};

CommandLine::Description::Description() {
  app.footer(examples::kProgram);
  app.require_subcommand(1);
  app.allow_windows_style_options(false);
  app.set_help_flag("-h,--help", "This help, also behind a command");
  app.add_flag_callback(
      "--version",
      [this] {
        request.what = TextRequest{"qvrscript " + to_utf8(Ov::CadenaVersion(own_version())) + "\n"};
        throw CLI::Success();
      },
      "The version of this program and of the library that it is made of");
  app.formatter(std::make_shared<HelpFormatter>());
  add_check();
  add_load(install, "install", "Runs the scripts of a definition, which creates a database", examples::kInstall);
  add_load(update, "update", "Runs the scripts that update a database from a version on", examples::kUpdate);
  add_run();
  add_cfp_commands();
  add_others();
}

CLI::App& CommandLine::Description::add_command(CLI::App& parent, const char* name, const char* what,
                                                const char* examples) {
  CLI::App& command = *parent.add_subcommand(name, what);
  command.footer(examples);
  return command;
}

void CommandLine::Description::add_output(CLI::App& command, std::vector<std::pair<std::string, Format>> formats) {
  auto* const format = add_choice(command, "--format", "How the result is written: for people, or for other programs",
                                  request.format, std::move(formats));
  format->group(kOutputGroup);
  command
      .add_flag_callback(
          "--json", [this] { request.format = Format::Json; }, "The same as --format json")
      ->excludes(format)
      ->group(kOutputGroup);
  command.add_flag("--quiet", request.quiet, "Only what is wrong")->group(kOutputGroup);
  command.add_flag("--verbose", request.verbose, "Failures inside the library too, on the error output")
      ->group(kOutputGroup);
}

void CommandLine::Description::add_cfp(CLI::App& command, CfpChoice& cfp) {
  add_text(command, "--id-env", "VAR", "The environment variable with the identification; without it you are asked",
           cfp.id_variable);
  add_text(command, "FOLDER", "", "The folder of the connection file", cfp.folder)->required();
  add_text(command, "NAME", "", "Its name without .cfp", cfp.name)->required();
}

void CommandLine::Description::add_connection(CLI::App& command, std::optional<ConnectionChoice>& connection) {
  const auto choice = [&connection]() -> ConnectionChoice& { return connection ? *connection : connection.emplace(); };
  const auto add = [&](const char* name, const char* value, const char* description, auto set) {
    return command
        .add_option_function<std::string>(
            name, [choice, set](const std::string& word) { set(choice(), text_of(word)); }, description)
        ->option_text(value)
        ->group(kConnectionGroup);
  };
  auto* const text = add("--connection", "STRING|-",
                         "The connection string (CadenaConexion), or - for the first line\n"
                         "of the standard input. Others can see arguments while a program runs",
                         [](ConnectionChoice& into, Text word) {
                           if (word == u"-") {
                             into.standard_input = true;
                           } else {
                             into.text = std::move(word);
                           }
                         });
  auto* const variable = add("--connection-env", "VAR", "The environment variable with the connection string",
                             [](ConnectionChoice& into, Text word) { into.variable = std::move(word); });
  auto* const file = command
                         .add_option_function<std::vector<std::string>>(
                             "--cfp",
                             [choice](const std::vector<std::string>& words) {
                               CfpChoice& cfp = choice().cfp.emplace();
                               cfp.folder = text_of(words[0]);
                               cfp.name = text_of(words[1]);
                               require_plain_name(cfp.name);
                             },
                             "A connection file: its folder, and its name without .cfp")
                         ->expected(2)
                         ->option_text("FOLDER NAME")
                         ->group(kConnectionGroup);
  text->excludes(variable)->excludes(file);
  variable->excludes(file);
  // What a file needs can be told before it: CLI11 takes options in the order of their description.
  add("--id-env", "VAR", "The environment variable with the connection file's identification",
      [](ConnectionChoice& into, Text word) {
        if (into.cfp) into.cfp->id_variable = std::move(word);
      })
      ->needs(file);
  command
      .add_flag_callback(
          "--client", [choice] { choice().client = true; },
          "The connection file's client account, not its administrator's")
      ->needs(file)
      ->group(kConnectionGroup);
  add("--connect-timeout", "SECONDS", "Seconds to wait for the connection (15; 0: no limit)",
      [](ConnectionChoice& into, const Text& word) { into.connect_timeout = seconds_of(word); });
}

void CommandLine::Description::add_run_options(CLI::App& command, RunOptions& options) {
  add_engine(command, "The engine that the scripts are for (MotorBD)", options.engine)->required()->group(kRunGroup);
  command.add_flag("--continue", options.go_on, "A command that fails is left out and the others run; ends with 1")
      ->group(kRunGroup);
  auto* const transaction = command
                                .add_flag_callback(
                                    "--no-transaction", [&options] { options.use_transaction = false; },
                                    "What ran stays, whatever comes after (EvitarTransaccion)")
                                ->group(kRunGroup);
  command.add_flag("--rehearse", options.rehearse, "Runs everything and takes all of it back")
      ->excludes(transaction)
      ->group(kRunGroup);
  add_connection(command, options.connection);
  command.add_flag("--timing", options.timing, "The time of each command and of the whole")->group(kOutputGroup);
  add_text(command, "--log", "FILE", "Keeps what is shown, with times", options.log)->group(kOutputGroup);
  add_output(command, {{"text", Format::Text}, {"json", Format::Json}, {"junit", Format::JUnit}});
}

void CommandLine::Description::add_run() {
  CLI::App& command = add_command(app, "run", "Runs one script as it is: placeholders stay", examples::kRun);
  add_run_options(command, run.options);
  add_text(command, "FILE", "", "The script", run.file)->required();
  command.final_callback([this] {
    drop_without_source(run.options.connection);
    if (!run.options.connection) {
      throw UsageFailure({u"run wants a connection: --connection, --connection-env or --cfp"});
    }
    request.what = std::move(run);
    request.command = u"run";
  });
}

void CommandLine::Description::add_load(LoadRequest& load, const char* name, const char* what, const char* examples) {
  load.update = name == std::string_view("update");
  CLI::App& command = add_command(app, name, what, examples);
  if (load.update) {
    auto* const from = command
                           .add_option_function<std::string>(
                               "--from", [&load](const std::string& word) { load.from = version_of(text_of(word)); },
                               "The version that the database has: five digits (VersionActual)")
                           ->option_text("VERSION")
                           ->group(kFilesGroup);
    add_text(command, "--from-query", "SQL", "Asks the database for it: one row, one number", load.from_query)
        ->excludes(from)
        ->group(kFilesGroup);
  }
  command.add_flag("--plan", load.plan, "Shows what would be run and what would be replaced, and runs nothing")
      ->group(kFilesGroup);
  add_text(command, "--out", "FILE", "Writes the text that would be run, and runs nothing", load.out)
      ->excludes("--plan")
      ->group(kFilesGroup);
  command
      .add_flag("--with-passwords", load.with_passwords,
                "In that text the accounts' passwords too, not their placeholders")
      ->needs("--out")
      ->group(kFilesGroup);
  command
      .add_flag_callback(
          "--no-encryption", [&load] { load.encrypt = false; },
          "SQL Server: procedures, views and triggers are created readable (Encri)")
      ->group(kFilesGroup);
  add_text(command, "--database", "NAME", "For [NombreBD]: the database or tablespace (NombreBaseOTablespace)",
           load.database)
      ->group(kTextsGroup);
  add_text(command, "--admin-user", "USER", "For [UsuarioQVRAdm] (UsuarioQVRAdm)", load.admin.user)->group(kTextsGroup);
  add_text(command, "--admin-password-env", "VAR",
           "The environment variable with the text for\n[ClaveUsuarioQVRAdm] (ClaveUsuarioQVRAdm)",
           load.admin.password_variable)
      ->group(kTextsGroup);
  add_text(command, "--client-user", "USER", "For [UsuarioQVRCli] (UsuarioQVRCli)", load.client.user)
      ->group(kTextsGroup);
  add_text(command, "--client-password-env", "VAR",
           "The environment variable with the text for\n[ClaveUsuarioQVRCli] (ClaveUsuarioQVRCli)",
           load.client.password_variable)
      ->group(kTextsGroup);
  add_run_options(command, load.options);
  for (const char* looked : {"--plan", "--out"}) {
    for (const char* runs : {"--continue", "--no-transaction", "--rehearse", "--timing", "--log"}) {
      command.get_option(looked)->excludes(command.get_option(runs));
    }
  }
  add_text(command, "FOLDER", "", "The folder of the scripts (Ruta)", load.folder)->required();
  add_text(command, load.update ? "APP" : "NAME", "",
           load.update ? "The application, with which the scripts' names begin (Aplicacion)"
                       : "The definition, with which the scripts' names begin (NombreDefinicion)",
           load.name)
      ->required();
  command.final_callback([this, &load] {
    require_plain_name(load.name);
    const TextView word = load.update ? u"update" : u"install";
    if (load.update && !load.from && !load.from_query) throw UsageFailure({u"update wants --from or --from-query"});
    drop_without_source(load.options.connection);
    if (!load.options.connection && (load.from_query || (!load.plan && !load.out))) {
      throw UsageFailure({word, u" wants a connection: --connection, --connection-env or --cfp",
                          load.from_query ? u"" : u"; or --plan, or --out"});
    }
    request.command = Text(word);
    request.what = std::move(load);
  });
}

void CommandLine::Description::add_check() {
  CLI::App& command = add_command(app, "check", "Finds what the runner would do that you may not mean", "");
  command.footer([] { return examples::check(); });
  add_engine(command, "The engine of files that do not name one (JET, SQL or ORA before the\nend); else SQL Server",
             check.engine);
  add_choice(command, "--fail-on", "From which severity on the exit code is 1 (warning)", check.fail_on,
             std::vector<std::pair<std::string, Severity>>{
                 {"error", Severity::Error}, {"warning", Severity::Warning}, {"note", Severity::Note}});
  command
      .add_option_function<std::vector<std::string>>(
          "--ignore",
          [this](const std::vector<std::string>& rules) {
            for (const std::string& rule : rules) check.ignored.push_back(text_of(rule));
          },
          "Leaves this rule out; may be given several times")
      ->option_text("RULE")
      ->allow_extra_args(false);
  command.add_flag_callback(
      "--no-encryption", [this] { check.encryption = false; }, "Leaves out the rules of encryption");
  auto* const lock = add_text(command, "--lock", "FILE", "Scripts that this file names must be as they were",
                              check.lock);
  command.add_flag("--update", check.update_lock, "Adds the scripts that the file does not name yet")->needs(lock);
  add_output(command,
             {{"text", Format::Text}, {"json", Format::Json}, {"github", Format::GitHub}, {"sarif", Format::Sarif}});
  command
      .add_option_function<std::vector<std::string>>(
          "PATH",
          [this](const std::vector<std::string>& paths) {
            for (const std::string& path : paths) check.paths.push_back(text_of(path));
          },
          "Scripts, and folders: all their .cfc files, and the names of these")

      ->required();
  command.final_callback([this] {
    request.what = std::move(check);
    request.command = u"check";
  });
}

void CommandLine::Description::add_cfp_commands() {
  CLI::App& cfp = add_command(app, "cfp", "Writes, shows and tests connection files (.cfp)", examples::kCfp);
  cfp.require_subcommand(1);
  const std::vector<std::pair<std::string, Format>> formats = {{"text", Format::Text}, {"json", Format::Json}};
  const auto add = [&](const char* name, const char* what, auto& draft, CfpChoice& choice) -> CLI::App& {
    CLI::App& command = add_command(cfp, name, what, "");
    add_cfp(command, choice);
    add_output(command, formats);
    command.final_callback([this, &draft, &choice, name] {
      require_plain_name(choice.name);
      request.command = text_of(std::string("cfp ") + name);
      request.what = std::move(draft);
    });
    return command;
  };
  CLI::App& made = add("new", "Writes a connection file", cfp_new, cfp_new.cfp);
  add_engine(made, "The engine (MotorBD)", cfp_new.engine)->required();
  add_text(made, "--provider", "P", "The OLE DB provider (Provider)", cfp_new.provider);
  add_text(made, "--data-source", "D", "The file, server or service (DataSource)", cfp_new.data_source);
  add_text(made, "--catalog", "C", "The database, or Oracle's tablespace\n(InitialCatalogOTablespace)",
           cfp_new.catalog);
  add_text(made, "--admin-user", "U", "The administrator (UsuarioAdm)", cfp_new.admin.user);
  add_text(made, "--admin-password-env", "VAR", "The environment variable with his password (ClaveAdm)",
           cfp_new.admin.password_variable);
  add_text(made, "--client-user", "U", "The everyday user (UsuarioCli)", cfp_new.client.user);
  add_text(made, "--client-password-env", "VAR", "The environment variable with his password (ClaveCli)",
           cfp_new.client.password_variable);
  add_text(made, "--other", "TEXT", "Further options of the connection string (OtrosParametros)", cfp_new.other);
  made.add_flag("--replace", cfp_new.replace, "Also where there is such a file");

  CLI::App& shown = add("show", "Shows a connection file's fields, passwords as dots", cfp_show, cfp_show.cfp);
  shown.add_flag("--reveal", cfp_show.reveal, "Shows the passwords");

  add("check", "Tells whether a connection file is whole, and what is damaged", cfp_check, cfp_check.cfp);

  CLI::App& rekeyed = add("rekey", "Writes a connection file with another identification", cfp_rekey, cfp_rekey.cfp);
  add_text(rekeyed, "--new-id-env", "VAR",
           "The environment variable with the new identification; without\nit you are "
           "asked",
           cfp_rekey.new_id_variable);

  CfpChoice& tested = cfp_test.connection.cfp.emplace();
  CLI::App& test = add("test", "Opens a connection, and tells engine and version", cfp_test, tested);
  test.add_flag("--client", cfp_test.connection.client, "The client account, not the administrator's");
  test.add_option_function<std::string>(
          "--connect-timeout",
          [this](const std::string& word) { cfp_test.connection.connect_timeout = seconds_of(text_of(word)); },
          "Seconds to wait for the connection (15; 0: no limit)")
      ->option_text("SECONDS");
}

void CommandLine::Description::add_doctor() {
  CLI::App& command = add_command(app, "doctor", "Tells what this machine lacks for the library, and what to do",
                                  examples::kDoctor);
  auto* const tries = command.add_flag("--try", doctor.tries,
                                       "Uses the library as applications do, and leaves nothing behind");
  add_connection(command, doctor.connection);
  add_engine(command, "That database's engine (MotorBD); else that of the connection file, or\njet", doctor.engine)
      ->group(kConnectionGroup);
  for (const char* name : {"--connection", "--connection-env", "--cfp", "--connect-timeout", "--engine"}) {
    command.get_option(name)->needs(tries);
  }
  add_text(command, "--report", "FILE", "Writes all of it to a file that can be sent, the steps with their times",
           doctor.report)
      ->group(kOutputGroup);
  add_output(command, {{"text", Format::Text}, {"json", Format::Json}});
  command.final_callback([this] {
    request.what = std::move(doctor);
    request.command = u"doctor";
  });
}

void CommandLine::Description::add_others() {
  add_doctor();
  // For those who package the program: no help shows them.
  constexpr const char* kHidden = "";
  add_command(app, "manual-page", "Prints the manual page", "").group(kHidden)->final_callback([this] {
    request.what = TextRequest{man_page(app)};
  });
  CLI::App& completion = add_command(app, "completion", "Prints what a shell completes", "");
  completion.group(kHidden)->require_subcommand(1);
  add_command(completion, "bash", "For bash", "").final_callback([this] {
    request.what = TextRequest{bash_completion(app)};
  });
}

CommandLine::CommandLine() : description_(std::make_unique<Description>()) {}
CommandLine::~CommandLine() = default;

const CLI::App& CommandLine::app() const { return description_->app; }

Request CommandLine::parse(std::vector<std::string> words) {
  CLI::App& app = description_->app;
  if (!words.empty() && words.front() == "help") {
    words.erase(words.begin());
    words.emplace_back("--help");
  }
  require_commands(app, words, 0);
  std::ranges::reverse(words);
  try {
    app.parse(std::move(words));
  } catch (const CLI::CallForHelp&) {
    description_->request.what = TextRequest{app.help()};
  } catch (const CLI::Success&) {  // the version
  } catch (const CLI::ParseError& failure) {
    throw UsageFailure(text_of(failure.what()));
  }
  return std::move(description_->request);
}

bool asks_for_json(const std::vector<std::string>& words) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--json" || words[i] == "--format=json") return true;
    if (words[i] == "--format" && i + 1 < words.size() && words[i + 1] == "json") return true;
  }
  return false;
}

}  // namespace qvr::script_tool
