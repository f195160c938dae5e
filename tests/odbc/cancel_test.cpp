// A command that would never end is ended by another thread.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

#include "base/failure.h"
#include "odbc/odbc_ado.h"
#include "odbc/posix/driver_manager.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

constexpr TextView kEndless = u"with recursive c(n) as (select 1 union all select n + 1 from c) select count(*) from c";

class OdbcCancel : public testing::Test {
 protected:
  OdbcCancel() {
    connection->set_connection_string(join({u"Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=",
                                            folder.file(u"test.db").u16string(), u";\""}));
    connection->open();
  }

  void execute(TextView text) {
    const auto command = ado->new_command();
    command->set_active_connection(*connection);
    command->set_command_type(services::CommandType::Text);
    command->set_command_text(text);
    command->set_command_timeout(0);
    command->execute();
  }

  // The failure of a command that another thread cancels again and again until it has ended.
  std::optional<FailureDetail> cancelled(TextView text) {
    std::atomic<bool> ended = false;
    std::thread other([&] {
      while (!ended) {
        ado->cancel();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
    });
    std::optional<FailureDetail> failure;
    try {
      execute(text);
    } catch (const RuntimeFailure& thrown) {
      failure = thrown.detail();
    }
    ended = true;
    other.join();
    return failure;
  }

  TemporaryFolder folder;
  const std::unique_ptr<odbc::OdbcAdo> ado = odbc::make_odbc_ado();
  const std::unique_ptr<services::AdoConnection> connection = ado->new_connection();
};

TEST_F(OdbcCancel, EndsTheCommandWithAFailureOfTheProvider) {
  const auto failure = cancelled(kEndless);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->source, u"Microsoft OLE DB Provider for ODBC Drivers");
  ASSERT_EQ(connection->errors().size(), 1u);
  EXPECT_EQ(connection->errors()[0].description, failure->description);
}

TEST_F(OdbcCancel, LeavesTheConnectionInItsTransaction) {
  execute(u"create table T(N int)");
  connection->begin_trans();
  execute(u"insert into T values(1)");
  EXPECT_TRUE(cancelled(kEndless));
  connection->rollback_trans();
  // Fails where the row is still there.
  execute(u"create unique index I on T(N)");
  execute(u"insert into T values(1)");
  connection->close();
}

TEST_F(OdbcCancel, IsHarmlessWhereNothingIsExecuted) {
  ado->cancel();
  execute(u"create table T(N int)");
  ado->cancel();
  connection->begin_trans();
  ado->cancel();
  execute(u"insert into T values(1)");
  connection->commit_trans();
  connection->close();
  ado->cancel();
}

TEST(OdbcDriverManager, IsTheFirstLibraryThatHasAllFunctions) {
  constexpr const char* kLibraries[] = {"libnothing-of-this-name.so", "libm.so.6", "libodbc.so.2"};
  EXPECT_NE(odbc::load_driver_manager(kLibraries).SQLCancel, nullptr);
}

TEST(OdbcDriverManager, IsToldToBeMissing) {
  constexpr const char* kLibraries[] = {"libnothing-of-this-name.so", "libm.so.6"};
  try {
    odbc::load_driver_manager(kLibraries);
    FAIL() << "it has loaded something";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.detail().description,
              u"ODBC's driver manager (libnothing-of-this-name.so) cannot be loaded: install unixODBC");
  }
}

}  // namespace
}  // namespace qvr::tests
