// What the ADO over ODBC makes of a driver that fails and commits as databases elsewhere do.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <optional>
#include <thread>

#include "base/failure.h"
#include "base/utf8.h"
#include "odbc/ado_session.h"
#include "odbc/odbc_api.h"
#include "session/value_convert.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

Text driver_string(TextView more) {
  return join({u"DRIVER=", from_utf8(QVR_TESTS_ODBC_DRIVER).value_or(Text()), u";", more});
}

class PlayedOdbc : public testing::Test {
 protected:
  // The log of the driver, and what the session is asked for.
  void open(TextView more) {
    const Text words = driver_string(join({u"log=", folder.file(u"log").u16string(), u";", more}));
    session.set_connection_string(join({u"Provider=MSDASQL;Extended Properties=\"", words, u"\""}));
    session.open();
  }
  std::string log() const {
    std::ifstream file(folder.file(u"log"));
    return {std::istreambuf_iterator<char>(file), {}};
  }
  template <class Body>
  std::optional<FailureDetail> failure_of(Body&& body) const {
    try {
      body();
      return std::nullopt;
    } catch (const RuntimeFailure& failure) {
      return failure.detail();
    }
  }
  // "state number text" of each error of the last failure.
  std::vector<std::string> errors() const {
    std::vector<std::string> told;
    for (const auto& each : session.errors()) {
      told.push_back(to_utf8(join({each.sql_state, u" ", decimal(each.native_error), u" ", each.description})));
    }
    return told;
  }

  TemporaryFolder folder;
  odbc::AdoSession session;
};

using Strings = std::vector<std::string>;

TEST_F(PlayedOdbc, GetsEachStepOnce) {
  open(u"value=Jamon;");
  session.begin_trans();
  EXPECT_EQ(to_text(session.execute(u"select Nombre", {}, 0).rows.at(0).at(0)), u"Jamon");
  EXPECT_FALSE(session.execute(u"insert", {}, 0).has_rows);
  session.commit_trans();
  session.close();
  EXPECT_EQ(log(), "connect\nbegin\nexecute select Nombre\nexecute insert\ncommit\ndisconnect\n");
}

TEST_F(PlayedOdbc, HasSeveralRecordsWithTheirNumbers) {
  open(u"");
  const auto failure = failure_of(
      [&] { session.execute(u"fail 42S02 208 No such table\n01000 5701 Changed language\n", {}, 0); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->description, u"No such table");
  EXPECT_EQ(errors(), (Strings{"42S02 208 No such table", "01000 5701 Changed language"}));
}

TEST_F(PlayedOdbc, RepeatsTheWholeConnectionString) {
  EXPECT_TRUE(failure_of([&] { open(u"fail=connect;echo=1;PWD=Secreto;"); }));
  ASSERT_EQ(errors().size(), 2u);
  for (const std::string& each : errors()) EXPECT_NE(each.find(";PWD=Secreto;"), std::string::npos) << each;
}

TEST_F(PlayedOdbc, FailsToRollBackAndStaysInItsTransaction) {
  open(u"fail=rollback;");
  session.begin_trans();
  EXPECT_TRUE(failure_of([&] { session.rollback_trans(); }));
  EXPECT_EQ(errors(), (Strings{"08S01 4711 The step fails: rollback", "01000 4712 It was asked to"}));
  EXPECT_TRUE(failure_of([&] { session.close(); })) << "it is in a transaction";
}

TEST_F(PlayedOdbc, FailsAtTheStepThatIsNamed) {
  EXPECT_TRUE(failure_of([&] { open(u"fail=connect;"); }));
  EXPECT_FALSE(session.is_open());
  open(u"fail=begin;");
  EXPECT_TRUE(failure_of([&] { session.begin_trans(); }));
  session.close();
  open(u"fail=commit;");
  session.begin_trans();
  EXPECT_TRUE(failure_of([&] { session.commit_trans(); }));
  session.rollback_trans();
  session.close();
  open(u"fail=disconnect;");
  EXPECT_TRUE(failure_of([&] { session.close(); }));
}

// The driver would do both successfully, as it has lost the transaction as well.
TEST_F(PlayedOdbc, NeitherCommitsNorRollsBackWhereAFailedCommandHasLostTheConnection) {
  open(u"lost=1;");
  session.begin_trans();
  EXPECT_TRUE(failure_of([&] { session.execute(u"fail 08S01 1 Gone", {}, 0); }));
  EXPECT_TRUE(failure_of([&] { session.commit_trans(); }));
  EXPECT_EQ(errors(), Strings{" 0 The connection to the server has been lost."});
  EXPECT_TRUE(failure_of([&] { session.rollback_trans(); }));
  EXPECT_EQ(log(), "connect\nbegin\nexecute fail 08S01 1 Gone\n");
}

// Whether the server has committed is not known then.
TEST_F(PlayedOdbc, DoesNotRollBackACommitWithWhichTheConnectionWasLost) {
  open(u"fail=commit;lost=1;");
  session.begin_trans();
  EXPECT_TRUE(failure_of([&] { session.commit_trans(); }));
  EXPECT_TRUE(failure_of([&] { session.rollback_trans(); }));
}

// Being asked, a driver may ask the server, and lose there what the commit was to find out.
TEST_F(PlayedOdbc, AsksNotWhetherTheConnectionIsLostWhereNothingHasFailed) {
  open(u"lost=1;");
  session.begin_trans();
  session.execute(u"insert", {}, 0);
  session.commit_trans();
  session.close();
}

TEST_F(PlayedOdbc, CommitsAfterAFailureOfTheCommandAlone) {
  for (const TextView known : {u"", u"lost=0;"}) {
    open(known);
    session.begin_trans();
    EXPECT_TRUE(failure_of([&] { session.execute(u"fail 42S02 208 No such table", {}, 0); }));
    session.commit_trans();
    session.close();
  }
}

// The driver waits until it is asked to end the statement, so that nothing but the cancelling ends this test.
TEST_F(PlayedOdbc, EndsAStatementThatIsCancelled) {
  open(u"");
  std::atomic<bool> ended = false;
  std::thread other([&] {
    while (!ended) {
      session.cancel();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  });
  const auto failure = failure_of([&] { session.execute(u"hang", {}, 0); });
  ended = true;
  other.join();
  ASSERT_TRUE(failure);
  EXPECT_EQ(errors(), Strings{"HY008 0 Operation canceled"});
  session.execute(u"insert", {}, 0);
  session.close();
}

struct Told {
  TextView words;
  std::string name, version;
  SQLUSMALLINT transactions;
};

std::string information(const odbc::Connection& connection, SQLUSMALLINT what) {
  std::array<char16_t, 100> text{};
  SQLSMALLINT length = 0;
  connection.handle().check(odbc::api().SQLGetInfoW(connection.handle().get(), what, text.data(),
                                                    static_cast<SQLSMALLINT>(sizeof text), &length));
  return to_utf8(text.data());
}

TEST(PlayedDatabase, TellsWhatItIs) {
  const Told rows[] = {{u"", "Played", "01.00.0000", SQL_TC_ALL},
                       {u"name=Oracle;version=19.03;ddl=commits;", "Oracle", "19.03", SQL_TC_DDL_COMMIT},
                       {u"ddl=refused;", "Played", "01.00.0000", SQL_TC_DML},
                       {u"ddl=ignored;", "Played", "01.00.0000", SQL_TC_DDL_IGNORE}};
  for (const Told& row : rows) {
    odbc::Connection connection;
    connection.open(driver_string(row.words), 0);
    EXPECT_EQ(information(connection, SQL_DBMS_NAME), row.name);
    EXPECT_EQ(information(connection, SQL_DBMS_VER), row.version);
    SQLUSMALLINT transactions = 99;
    connection.handle().check(odbc::api().SQLGetInfoW(connection.handle().get(), SQL_TXN_CAPABLE, &transactions,
                                                      sizeof transactions, nullptr));
    EXPECT_EQ(transactions, row.transactions);
  }
}

}  // namespace
}  // namespace qvr::tests
