#include "qvrscript/run/observed_ado.h"

namespace qvr::script_tool {
namespace {

struct Observer {
  void require_uninterrupted() const {
    if (hooks.interrupted()) throw RuntimeFailure(failure_number::kInvalidArgument, u"Interrupted");
  }

  Course& course;
  const ObservedHooks& hooks;
  const bool rehearse;
};

class ObservedConnection final : public services::AdoConnection {
 public:
  ObservedConnection(std::unique_ptr<services::AdoConnection> real, const Observer& observer)
      : real_(std::move(real)), observer_(observer) {}

  services::AdoConnection& real() { return *real_; }

  void set_connection_string(TextView text) override { real_->set_connection_string(text); }
  void open() override {
    observer_.hooks.opening();
    real_->open();
    observer_.course.opened = true;
    observer_.hooks.opened();
    observer_.require_uninterrupted();
  }
  void begin_trans() override {
    real_->begin_trans();
    observer_.course.begun = true;
  }
  void commit_trans() override {
    observer_.require_uninterrupted();
    if (observer_.rehearse) return rollback_trans();
    real_->commit_trans();
    observer_.course.committed = true;
  }
  void rollback_trans() override {
    try {
      real_->rollback_trans();
    } catch (const RuntimeFailure& failure) {
      observer_.course.rollback_failure = failure.detail();
      throw;
    }
    observer_.course.rolled_back = true;
    observer_.course.rollback_failure.reset();  // of a first attempt
  }
  void close() override { real_->close(); }
  std::vector<services::AdoError> errors() override { return real_->errors(); }

 private:
  std::unique_ptr<services::AdoConnection> real_;
  const Observer& observer_;
};

class ObservedCommand final : public services::AdoCommand {
 public:
  ObservedCommand(std::unique_ptr<services::AdoCommand> real, const Observer& observer)
      : real_(std::move(real)), observer_(observer) {}

  void set_active_connection(services::AdoConnection& connection) override {
    real_->set_active_connection(dynamic_cast<ObservedConnection&>(connection).real());
  }
  void set_command_type(services::CommandType type) override { real_->set_command_type(type); }
  void set_command_text(TextView text) override { real_->set_command_text(text); }
  void set_command_timeout(std::int32_t seconds) override { real_->set_command_timeout(seconds); }
  void execute() override {
    observer_.require_uninterrupted();
    observer_.hooks.executing();
    try {
      real_->execute();
    } catch (const RuntimeFailure&) {
      observer_.hooks.executed(false);
      throw;
    }
    observer_.hooks.executed(true);
    observer_.require_uninterrupted();  // the run ends behind a command that could not be cancelled
  }

  void refresh_parameters() override { real_->refresh_parameters(); }
  Value parameter_value(std::int32_t index) override { return real_->parameter_value(index); }
  void set_parameter_value(std::int32_t index, const Value& value) override {
    real_->set_parameter_value(index, value);
  }
  void append_parameter(services::AdoParameter& parameter) override { real_->append_parameter(parameter); }

 private:
  std::unique_ptr<services::AdoCommand> real_;
  const Observer& observer_;
};

class ObservedAdo final : public services::Ado {
 public:
  ObservedAdo(RunAdo& real, Course& course, const ObservedHooks& hooks, bool rehearse)
      : real_(real), observer_{course, hooks, rehearse} {}

  std::unique_ptr<services::AdoConnection> new_connection() override {
    return std::make_unique<ObservedConnection>(real_.new_connection(), observer_);
  }
  std::unique_ptr<services::AdoCommand> new_command() override {
    return std::make_unique<ObservedCommand>(real_.new_command(), observer_);
  }
  std::unique_ptr<services::AdoParameter> new_parameter() override { return real_.new_parameter(); }

 private:
  RunAdo& real_;
  const Observer observer_;
};

}  // namespace

std::unique_ptr<services::Ado> observed(RunAdo& ado, Course& course, const ObservedHooks& hooks, bool rehearse) {
  return std::make_unique<ObservedAdo>(ado, course, hooks, rehearse);
}

}  // namespace qvr::script_tool
