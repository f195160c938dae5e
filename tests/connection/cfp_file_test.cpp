// Writing and reading of ".cfp" files.
#include "connection/cfp_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/failure.h"
#include "base/utf8.h"
#include "connection/sample_parameters.h"
#include "services/builtin_text_protection.h"
#include "support/rows.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using services::BuiltinTextProtection;
using tests::PrintTo;

class CfpFileTest : public ::testing::Test {
 protected:
  void use_builtin_protection() {
    thread.make_text_protection = [] {
      return std::make_unique<BuiltinTextProtection>(system_platform().cryptography);
    };
    thread.renew();
  }

  Text protected_text(TextView text) { return CheapProtection().Cifrar(u"id", text); }

  TestThread thread;
  TemporaryFolder folder;
};

TEST_F(CfpFileTest, IsNamedByFolderAndName) {
  EXPECT_EQ(cfp_path(u"C:\\Datos", u"Gestion"), u"C:\\Datos\\Gestion.cfp");
}

TEST_F(CfpFileTest, HasTenProtectedLines) {
  QVRcfp cfp;
  const ConnectionParameters sample = sample_parameters();
  ASSERT_TRUE(cfp.Asignar(u"id", sample));
  ASSERT_TRUE(cfp.Guardar(u"id", folder.text(), u"a"));
  const Text kFields[] = {u"2",
                          sample.Provider,
                          sample.DataSource,
                          sample.InitialCatalogOTablespace,
                          sample.UsuarioAdm,
                          sample.ClaveAdm,
                          sample.UsuarioCli,
                          sample.ClaveCli,
                          sample.OtrosParametros};
  Text expected, all;
  for (const Text& field : kFields) {
    expected += protected_text(field) + u"\r\n";
    all += field;
  }
  expected += protected_text(all) + u"\r\n";
  EXPECT_EQ(folder.read(u"a.cfp"), to_utf8(expected));
}

TEST_F(CfpFileTest, GivesParametersBack) {
  struct Row {
    const char* name;
    ConnectionParameters parameters;
  };
  ConnectionParameters nothing, large = sample_parameters(), negative = sample_parameters();
  large.DataSource = Text(65536, u'\u00f1');
  large.ClaveCli = Text(65536, u'x');
  negative.MotorBD = Engine{INT32_MIN};
  for (const Row& row : {Row{"sample", sample_parameters()}, Row{"empty values", nothing}, Row{"64 K values", large},
                         Row{"any engine", negative}}) {
    SCOPED_TRACE(row.name);
    QVRcfp saved, loaded;
    ASSERT_TRUE(saved.Asignar(u"id", row.parameters));
    ASSERT_TRUE(saved.Guardar(u"id", folder.text(), u"x \u00f1"));
    EXPECT_TRUE(loaded.Crear(u"id", folder.text(), u"x \u00f1"));
    expect_parameters(loaded, row.parameters, u"x \u00f1");
  }
}

TEST_F(CfpFileTest, GivesParametersBackThroughTheBuiltInProtection) {
  use_builtin_protection();
  ConnectionParameters parameters = sample_parameters();
  parameters.OtrosParametros = Text(65536, u'\u20ac');
  QVRcfp saved, loaded;
  ASSERT_TRUE(saved.Asignar(u"id", parameters));
  ASSERT_TRUE(saved.Guardar(u"id", folder.text(), u"a"));
  EXPECT_TRUE(loaded.Crear(u"id", folder.text(), u"a"));
  expect_parameters(loaded, parameters, u"a");
  EXPECT_FALSE(loaded.Crear(u"ID", folder.text(), u"a"));
  expect_cleared(loaded);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 5 The protected text is damaged or was written with another key"});
}

TEST_F(CfpFileTest, IsNotReadByAnotherProtection) {
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", folder.text(), u"cheap"));
  use_builtin_protection();
  ASSERT_TRUE(cfp.Guardar(u"id", folder.text(), u"built in"));
  EXPECT_FALSE(cfp.Crear(u"id", folder.text(), u"cheap"));
  thread.make_text_protection = [] { return std::make_unique<CheapProtection>(); };
  thread.renew();
  EXPECT_FALSE(cfp.Crear(u"id", folder.text(), u"built in"));
  EXPECT_TRUE(cfp.Crear(u"id", folder.text(), u"cheap"));
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.Crear: 5 The protected text is damaged or was written with another key",
                              trace_of(u"QVRcfp.Crear", 5)}));
}

TEST_F(CfpFileTest, ShowsNoFieldInPlainText) {
  use_builtin_protection();
  QVRcfp cfp;
  const ConnectionParameters sample = sample_parameters();
  ASSERT_TRUE(cfp.Asignar(u"id", sample));
  ASSERT_TRUE(cfp.Guardar(u"id", folder.text(), u"a"));
  const std::string bytes = folder.read(u"a.cfp");
  for (const Text& field : {sample.Provider, sample.DataSource, sample.InitialCatalogOTablespace, sample.ClaveAdm,
                            sample.ClaveCli, sample.OtrosParametros}) {
    EXPECT_EQ(bytes.find(to_utf8(field)), std::string::npos) << to_utf8(field);
  }
  EXPECT_EQ(bytes.find_first_of(", \""), std::string::npos);
}

// As failures of their own, which whoever traces failures can tell.
TEST_F(CfpFileTest, IsAFailureWithoutItsCheckLine) {
  CheapProtection protection;
  std::string bytes = cfp_bytes(sample_parameters(), thread.files, protection, u"id");
  bytes[bytes.size() - 3] = bytes[bytes.size() - 3] == 'a' ? 'b' : 'a';
  MemoryInput file(bytes);
  try {
    read_cfp(file, thread.files, protection, u"id");
    FAIL() << "read";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.detail().number, failure_number::kInvalidArgument);
    EXPECT_EQ(failure.detail().description, u"The file's check line does not match its other lines");
  }
}

TEST_F(CfpFileTest, IsReadWhateverTheCaseOfItsCheckLine) {
  thread.files.keep_in_memory();
  thread.make_text_protection = [] {
    return std::make_unique<CheapProtection>(CheapProtection::kUpper, CheapProtection::kLower);
  };
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
  std::string& bytes = thread.files.memory[u"F\\a.cfp"];
  const std::size_t check = bytes.rfind('\n', bytes.size() - 2) + 1;
  for (std::size_t i = check; i + 2 < bytes.size(); ++i) bytes[i] = static_cast<char>(bytes[i] ^ 0x20);
  EXPECT_TRUE(cfp.Crear(u"id", u"F", u"a"));
  expect_parameters(cfp, sample_parameters(), u"a");
}

TEST_F(CfpFileTest, KeepsLinesInTheSystemsPage) {
  thread.files.keep_in_memory();
  thread.files.single_byte_page = true;
  thread.make_text_protection = [] { return std::make_unique<LatinProtection>(); };
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
  EXPECT_TRUE(cfp.Crear(u"id", u"F", u"a"));
  expect_parameters(cfp, sample_parameters(), u"a");
}

TEST_F(CfpFileTest, IsNotMadeWhereThereIsNoPlace) {
  folder.write(u"plain", "");
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_FALSE(cfp.Guardar(u"id", folder.file_text(u"missing"), u"a"));
  EXPECT_FALSE(cfp.Guardar(u"id", folder.file_text(u"plain"), u"a"));
  EXPECT_FALSE(cfp.Guardar(u"id", folder.text(), u"sub\\a"));
  EXPECT_EQ(cfp.Archivo(), u"");
  expect_parameters(cfp, sample_parameters(), u"");
  EXPECT_EQ(traced(), Traces(3, u"QVRcfp.Guardar: 75 Path/File access error"));
}

TEST_F(CfpFileTest, StaysAsItIsWhenTheProtectionFails) {
  thread.files.keep_in_memory();
  constexpr int kCalls = 10 + 10;  // written, and read back
  for (int failing = 1; failing <= kCalls; ++failing) {
    SCOPED_TRACE(failing);
    int calls = 0;
    thread.make_text_protection = [&] { return std::make_unique<FailingProtection>(failing, calls); };
    thread.renew();
    thread.files.memory[u"F\\a.cfp"] = "what was there";
    QVRcfp cfp;
    ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
    EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"a"));
    EXPECT_EQ(thread.files.memory[u"F\\a.cfp"], "what was there");
    EXPECT_EQ(thread.files.memory.size(), 1u) << "nothing is left beside it";
    EXPECT_EQ(thread.files.created, failing - 1) << "it was not touched";
    EXPECT_EQ(cfp.Archivo(), u"");
    EXPECT_EQ(calls, failing);
    EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"a")) << "the object still holds its parameters";
  }
  EXPECT_EQ(traced(), Traces(kCalls, trace_of(u"QVRcfp.Guardar", 429)));
}

// Deriving a key takes a moment, during which another saver would wait.
TEST_F(CfpFileTest, IsCreatedWhenAllLinesAreProtected) {
  struct Watching final : services::TextProtection {
    explicit Watching(const int& files_created) : created(files_created) {}
    Text Cifrar(TextView Clave, TextView Texto) override {
      EXPECT_EQ(created, 0);
      return inner.Cifrar(Clave, Texto);
    }
    Text Descifrar(TextView Clave, TextView Texto) override {
      EXPECT_EQ(created, 0);
      return inner.Descifrar(Clave, Texto);
    }
    const int& created;
    CheapProtection inner;
  };
  thread.files.keep_in_memory();
  thread.make_text_protection = [this] { return std::make_unique<Watching>(thread.files.created); };
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
  EXPECT_EQ(thread.files.created, 1);
}

// A protection that undoes what it did, but writes something around or between that no line can hold.
class Decorated final : public services::TextProtection {
 public:
  Decorated(TextView front, TextView middle, TextView end) : front_(front), middle_(middle), end_(end) {}
  Text Cifrar(TextView Clave, TextView Texto) override {
    const Text inner = inner_.Cifrar(Clave, Texto);
    return join({front_, TextView(inner).substr(0, 1), middle_, TextView(inner).substr(1), end_});
  }
  Text Descifrar(TextView Clave, TextView Texto) override {
    Texto.remove_prefix(front_.size());
    Texto.remove_suffix(end_.size());
    return inner_.Descifrar(Clave, join({Texto.substr(0, 1), Texto.substr(1 + middle_.size())}));
  }

 private:
  CheapProtection inner_;
  const TextView front_, middle_, end_;
};

struct DecoratedRow {
  const char* name;
  TextView front, middle, end;
  bool kept;
};
const DecoratedRow kDecorated[] = {
    {"nothing", u"", u"", u"", true},
    {"a blank inside", u"", u" ", u"", true},
    {"other punctuation", u"'", u";", u".", true},
    {"a line break inside", u"", u"\r\n", u"", false},
    {"a line feed inside", u"", u"\n", u"", false},
    {"a carriage return inside", u"", u"\r", u"", false},
    {"a line break at the end", u"", u"", u"\r\n", false},
    {"a carriage return at the end", u"", u"", u"\r", false},
    {"a comma", u"", u",", u"", false},
    {"a comma at the end", u"", u"", u",", false},
    {"a double quote", u"", u"\"", u"", false},
    {"double quotes around it", u"\"", u"", u"\"", false},
    {"a blank in front", u" ", u"", u"", false},
    {"a blank at the end", u"", u"", u" ", false},
    {"a tab in front", u"\t", u"", u"", false},
    {"a tab at the end", u"", u"", u"\t", false},
};

using DecoratedLines = Rows<CfpFileTest, DecoratedRow>;

TEST_P(DecoratedLines, AreSavedWhereEveryReaderTakesThem) {
  thread.files.keep_in_memory();
  thread.make_text_protection = [] {
    return std::make_unique<Decorated>(GetParam().front, GetParam().middle, GetParam().end);
  };
  thread.files.memory[u"F\\a.cfp"] = "what was there";
  QVRcfp cfp, reader;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  EXPECT_EQ(cfp.Guardar(u"id", u"F", u"a"), GetParam().kept);
  EXPECT_EQ(thread.files.memory[u"F\\a.cfp"] == "what was there", !GetParam().kept);
  EXPECT_EQ(traced(), GetParam().kept ? Traces()
                                      : Traces{u"QVRcfp.Guardar: 5 The text protection wrote a line break, a comma, a "
                                               u"double quote or a blank at an end"});
  EXPECT_EQ(reader.Crear(u"id", u"F", u"a"), GetParam().kept);
  EXPECT_EQ(traced(), GetParam().kept ? Traces() : Traces{trace_of(u"QVRcfp.Crear", 5)});
}

INSTANTIATE_TEST_SUITE_P(, DecoratedLines, ::testing::ValuesIn(kDecorated), row_name);

// Protections that break their promise in one call of all.
class Unfaithful final : public services::TextProtection {
 public:
  Unfaithful(int encrypting, int decrypting) : encrypting_(encrypting), decrypting_(decrypting) {}
  Text Cifrar(TextView Clave, TextView Texto) override {
    return inner_.Cifrar(Clave, --encrypting_ == 0 ? join({Texto, u"x"}) : Texto);
  }
  Text Descifrar(TextView Clave, TextView Texto) override {
    Text text = inner_.Descifrar(Clave, Texto);
    if (--decrypting_ == 0) std::ranges::reverse(text);
    return text;
  }

 private:
  CheapProtection inner_;
  int encrypting_, decrypting_;
};

TEST_F(CfpFileTest, IsNotWrittenByAProtectionThatDoesNotReadItBack) {
  thread.files.keep_in_memory();
  constexpr int kWritten = 11, kRead = 9;
  for (int call = 1; call <= kWritten + kRead; ++call) {
    if (call == kWritten + 1) continue;  // "2" is the same backwards
    SCOPED_TRACE(call);
    thread.make_text_protection = [call] { return std::make_unique<Unfaithful>(call, call - kWritten); };
    thread.renew();
    thread.files.memory[u"F\\a.cfp"] = "what was there";
    QVRcfp cfp;
    ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
    EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"a"));
    EXPECT_EQ(thread.files.memory[u"F\\a.cfp"], "what was there");
    EXPECT_EQ(traced(), Traces{call == 1 ? u"QVRcfp.Guardar: 13 The file's first line is no 32-bit number"
                                         : u"QVRcfp.Guardar: 5 The file's check line does not match its other lines"});
  }
}

struct NoProtection final : services::TextProtection {
  Text Cifrar(TextView, TextView Texto) override { return Text(Texto); }
  Text Descifrar(TextView, TextView Texto) override { return Text(Texto); }
};

TEST_F(CfpFileTest, IsNotWrittenWithALineThatCouldNotBeRead) {
  thread.files.keep_in_memory();
  thread.make_text_protection = [] { return std::make_unique<NoProtection>(); };
  ConnectionParameters parameters;
  parameters.MotorBD = Engine::SqlServer;
  parameters.OtrosParametros = Text(std::size_t{16} << 20, u'o');
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
  EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"a"));
  EXPECT_TRUE(thread.files.memory.empty());
  parameters.OtrosParametros.resize(std::size_t{1} << 20);
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
  EXPECT_TRUE(cfp.Crear(u"id", u"F", u"a"));
  EXPECT_EQ(cfp.OtrosParametros().size(), std::size_t{1} << 20);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Guardar: 75 A line of the file is longer than 16 MiB"});
}

TEST_F(CfpFileTest, StaysAsItIsWhenTheDiskIsFull) {
  thread.files.keep_in_memory();
  auto& memory = thread.files.memory;
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(u"id", sample_parameters()));
  ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"whole"));
  const std::string whole = memory[u"F\\whole.cfp"];
  for (std::size_t room : {std::size_t{0}, std::size_t{1}, whole.size() - 1}) {
    SCOPED_TRACE(room);
    thread.files.writable_bytes = room;
    memory[u"F\\part.cfp"] = "what was there";
    EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"part"));
    EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"new"));
    EXPECT_EQ(memory[u"F\\part.cfp"], "what was there");
    EXPECT_EQ(memory.size(), 2u) << "no part is left";
  }
  thread.files.writable_bytes = whole.size();
  thread.files.close_fails = true;
  EXPECT_FALSE(cfp.Guardar(u"id", u"F", u"part"));
  EXPECT_EQ(memory[u"F\\part.cfp"], "what was there");
  thread.files.close_fails = false;
  EXPECT_TRUE(cfp.Guardar(u"id", u"F", u"part"));
  EXPECT_EQ(memory[u"F\\part.cfp"], whole);
  EXPECT_EQ(memory.size(), 2u);
  EXPECT_EQ(cfp.Archivo(), u"whole");
  EXPECT_EQ(traced(), Traces(7, trace_of(u"QVRcfp.Guardar", 75)));
}

}  // namespace
}  // namespace qvr::tests
