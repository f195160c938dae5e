// Files on Windows: which are refused, and how they are replaced.
#include <windows.h>

#include <sddl.h>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "base/failure.h"
#include "platform/platform.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

Files& files() { return system_platform().files; }

void expect_refused(TextView path) {
  EXPECT_THROW(files().open(path), RuntimeFailure);
  EXPECT_THROW(files().create(path), RuntimeFailure);
}

TEST(WindowsFiles, AreNoDevices) {
  const TemporaryFolder folder;
  for (TextView name : {u"Aux.cfp", u"nul.cfp", u"NUL", u"COM1.cfp", u"con.cfp", u"CONIN$", u"LPT1", u"aux .cfp"}) {
    SCOPED_TRACE(std::string(name.begin(), name.end()));
    expect_refused(folder.file_text(name));
    EXPECT_THROW(files().any_entry(folder.file_text(name), 0), RuntimeFailure);
  }
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>());
}

// With a server that nobody waits at, and with one that would take the call.
TEST(WindowsFiles, AreNoPipes) {
  for (const DWORD instances : {DWORD{1}, DWORD{2}}) {
    const HANDLE pipe = CreateNamedPipeW(L"\\\\.\\pipe\\qvr_files_test", PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_WAIT,
                                         instances, 0, 0, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    expect_refused(u"\\\\.\\pipe\\qvr_files_test");
    expect_refused(u"\\\\?\\pipe\\qvr_files_test");
    expect_refused(u"//./pipe/qvr_files_test");
    char byte = 0;
    DWORD count = 0;
    EXPECT_FALSE(PeekNamedPipe(pipe, &byte, 1, &count, nullptr, nullptr));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_BAD_PIPE)) << "nobody may have come";
    EXPECT_TRUE(CloseHandle(pipe));
  }
  EXPECT_THROW(files().names(u"\\\\.\\pipe"), RuntimeFailure);
}

TEST(WindowsFiles, AreNoMailslotsStreamsOrFolders) {
  const HANDLE mailslot = CreateMailslotW(L"\\\\.\\mailslot\\qvr_files_test", 0, MAILSLOT_WAIT_FOREVER, nullptr);
  ASSERT_NE(mailslot, INVALID_HANDLE_VALUE);
  expect_refused(u"\\\\.\\mailslot\\qvr_files_test");
  EXPECT_TRUE(CloseHandle(mailslot));
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "inside");
  std::filesystem::create_directory(folder.file(u"sub"));
  for (TextView name : {u"x.cfp:", u"x.cfp:s", u"x.cfp::$DATA", u"x.cfp.", u"x.cfp ", u"sub", u"sub\\"}) {
    SCOPED_TRACE(std::string(name.begin(), name.end()));
    expect_refused(folder.file_text(name));
  }
  EXPECT_EQ(folder.read(u"x.cfp"), "inside");
}

TEST(WindowsFiles, CanBeNamedInTheLongForm) {
  const TemporaryFolder folder;
  const Text path = join({u"\\\\?\\", folder.text(), u"\\x.cfp"});
  const auto out = files().create(path);
  out->write("new");
  out->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  std::array<char, 10> buffer;
  EXPECT_EQ(files().open(path)->read(buffer), 3u);
  EXPECT_TRUE(files().any_entry(path, 0));
  EXPECT_EQ(files().names(join({u"\\\\?\\", folder.text()})), std::vector<Text>{u"x.cfp"});
}

TEST(WindowsFiles, ThatMustNotBeWrittenAreNotReplaced) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const std::wstring path = folder.file(u"x.cfp").wstring();
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(WindowsFiles, ThatNobodyElseMayWriteAreNotReplaced) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const HANDLE reader = CreateFileW(folder.file(u"x.cfp").wstring().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(reader, INVALID_HANDLE_VALUE);
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  EXPECT_TRUE(CloseHandle(reader));
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
}

// It cannot be renamed then.
TEST(WindowsFiles, ThatAReaderKeepsOpenAreWrittenInTheirPlace) {
  const TemporaryFolder folder;
  for (const std::string former : {"former", "former and longer than the new one"}) {
    folder.write(u"x.cfp", former);
    const auto reader = files().open(folder.file_text(u"x.cfp"));
    const auto out = files().create(folder.file_text(u"x.cfp"));
    out->write("new and whole");
    EXPECT_EQ(folder.read(u"x.cfp"), former);
    out->close();
    EXPECT_EQ(folder.read(u"x.cfp"), "new and whole");
    EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
  }
}

void save(TextView path, std::string_view bytes) {
  const auto out = files().create(path);
  out->write(bytes);
  out->close();
}

// A file that another process has for itself, as a saver that writes in place or a virus scanner.
class HeldFile {
 public:
  explicit HeldFile(const std::filesystem::path& path)
      : handle_(CreateFileW(path.wstring().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~HeldFile() { CloseHandle(handle_); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  bool is_open() const { return handle_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE handle_;
};

TEST(WindowsFiles, AreWaitedForAMoment) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  auto held = std::make_unique<HeldFile>(folder.file(u"x.cfp"));
  ASSERT_TRUE(held->is_open());
  std::thread holder([&] {
    Sleep(100);
    held.reset();
  });
  EXPECT_NO_THROW(save(folder.file_text(u"x.cfp"), "new"));
  holder.join();
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
}

TEST(WindowsFiles, AreNotWaitedForWithoutEnd) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  {
    const HeldFile held(folder.file(u"x.cfp"));
    ASSERT_TRUE(held.is_open());
    expect_refused(folder.file_text(u"x.cfp"));
  }
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

// Another program's own file of this name stood in the way once.
TEST(WindowsFiles, AreSavedBesideAFileThatSomebodyHasOpen) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp.tmp", "a user's");
  {
    const HeldFile held(folder.file(u"x.cfp.tmp"));
    ASSERT_TRUE(held.is_open());
    save(folder.file_text(u"x.cfp"), "new");
  }
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"x.cfp.tmp"), "a user's");
}

TEST(WindowsFiles, KeepTheirMarks) {
  const TemporaryFolder folder;
  for (const DWORD marks : {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_SYSTEM},
                            DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM}, DWORD{0}}) {
    SCOPED_TRACE(marks);
    folder.write(u"x.cfp", "former");
    const std::wstring path = folder.file(u"x.cfp").wstring();
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), marks | FILE_ATTRIBUTE_ARCHIVE));
    save(folder.file_text(u"x.cfp"), "new");
    EXPECT_EQ(GetFileAttributesW(path.c_str()), marks | FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(folder.read(u"x.cfp"), "new");
    EXPECT_TRUE(DeleteFileW(path.c_str()));
  }
}

std::wstring rights_of(const std::wstring& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> descriptor(size);
  EXPECT_TRUE(GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size));
  LPWSTR text = nullptr;
  EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1,
                                                                   DACL_SECURITY_INFORMATION, &text, nullptr));
  const std::wstring rights = text;
  LocalFree(text);
  return rights;
}

// Everybody may write it, unlike a new file.
TEST(WindowsFiles, KeepTheirRights) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const std::wstring path = folder.file(u"x.cfp").wstring(), usual = rights_of(path);
  PSECURITY_DESCRIPTOR own = nullptr;
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;WD)", SDDL_REVISION_1, &own, nullptr));
  ASSERT_TRUE(SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, own));
  LocalFree(own);
  const std::wstring former = rights_of(path);
  ASSERT_NE(former, usual);
  save(folder.file_text(u"x.cfp"), "new");
  EXPECT_EQ(rights_of(path), former);
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
}

// The mask is that of Dir in Visual Basic; who lists a folder gets all its files.
TEST(WindowsFiles, AreListedWhateverTheirMarks) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file(u"sub"));
  for (const DWORD marks : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
    folder.write(u"x.cfc", "");
    ASSERT_TRUE(SetFileAttributesW(folder.file(u"x.cfc").wstring().c_str(), marks));
    EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfc"});
    EXPECT_FALSE(files().any_entry(folder.file_text(u"*.cfc"), 0));
    EXPECT_FALSE(files().any_entry(folder.file_text(u"*.cfc"), FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_TRUE(files().any_entry(folder.file_text(u"*.cfc"), static_cast<std::int32_t>(marks)));
    EXPECT_TRUE(files().any_entry(folder.file_text(u"*.cfc"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
    EXPECT_TRUE(DeleteFileW(folder.file(u"x.cfc").wstring().c_str()));
  }
}

TEST(WindowsFiles, LeaveNothingInOtherSpellings) {
  const TemporaryFolder folder;
  folder.write(u"Enlace.cfp.qvr0A1B2C3D.tmp", "part of it");
  save(folder.file_text(u"ENLACE.CFP"), "new");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"ENLACE.CFP"});
}

}  // namespace
}  // namespace qvr::tests
