#include "automation/library.h"

#include <memory>

#include "automation/host.h"

namespace qvr::tests {
namespace {

std::unique_ptr<InProcessServer> library_server, ado_server;

class Registered : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_EQ(OleInitialize(nullptr), S_OK);
    library_server = std::make_unique<InProcessServer>(beside_program(L"QVRlib21.dll"));
    ado_server = std::make_unique<InProcessServer>(beside_program(L"testado.dll"));
    ASSERT_TRUE(library_server->loaded());
    ASSERT_TRUE(ado_server->loaded());
    ASSERT_EQ(library_server->register_it(), S_OK);
    ASSERT_EQ(ado_server->register_it(), S_OK);
  }
  void TearDown() override {
    EXPECT_EQ(library_server->can_unload(), S_OK) << "an object of some test still lives";
    EXPECT_EQ(ado_server->unregister_it(), S_OK);
    EXPECT_EQ(library_server->unregister_it(), S_OK);
    ado_server.reset();
    library_server.reset();
    OleUninitialize();
  }
};

const auto* const registered = testing::AddGlobalTestEnvironment(new Registered);

}  // namespace

InProcessServer::InProcessServer(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {}

InProcessServer::~InProcessServer() {
  if (module_ != nullptr) FreeLibrary(module_);
}

const InProcessServer& library() { return *library_server; }
const InProcessServer& test_ado() { return *ado_server; }

}  // namespace qvr::tests
