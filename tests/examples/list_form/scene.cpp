#include "scene.h"

#include <cstdlib>

#include "screen.h"

namespace qvr::tests {
namespace {

using EntryPoint = HRESULT(STDAPICALLTYPE*)();

// The test ADO in the place of the system's. The library itself is found by the manifest of the program.
class TestAdo {
 public:
  TestAdo() { call("DllRegisterServer"); }
  ~TestAdo() { call("DllUnregisterServer"); }

 private:
  void call(const char* entry_point) const {
    const auto found = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(module_, entry_point)));
    if (found == nullptr || FAILED(found())) throw std::runtime_error(entry_point);
  }

  HMODULE module_ = LoadLibraryW(L"testado.dll");
};

class Surroundings : public testing::Environment {
 public:
  void SetUp() override {
    screen_ = std::make_unique<Screen>();  // before this thread has windows, of which an apartment may be one
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    ado_ = std::make_unique<TestAdo>();
  }
  void TearDown() override {
    ado_.reset();
    screen_.reset();
    CoUninitialize();
  }

 private:
  std::unique_ptr<Screen> screen_;
  std::unique_ptr<TestAdo> ado_;
};

std::wstring connection_string(const char* setting) {
  const std::string options = std::getenv(setting);
  return L"Provider=MSDASQL;Extended Properties=\"" + std::wstring(options.begin(), options.end()) + L"\"";
}

const testing::Environment* const kSurroundings = testing::AddGlobalTestEnvironment(new Surroundings);

}  // namespace

Scene::Scene()
    : folder_(std::filesystem::temp_directory_path() / ("list form " + std::to_string(GetCurrentProcessId()))) {
  std::filesystem::remove_all(folder_);
  std::filesystem::create_directories(folder_);
  const list_form::Connection connection = session();
  for (const wchar_t* table : {L"Esquema", L"Clientes", L"Pedidos", L"Otra"}) {
    connection.execute(std::wstring(L"DROP TABLE IF EXISTS ") + table);
  }
}

Scene::~Scene() { std::filesystem::remove_all(folder_); }

list_form::Connection Scene::session() { return list_form::Connection(connection_string("QVR_TESTS_CONNECTION")); }

list_form::Connection Scene::administrator() { return list_form::Connection(connection_string("QVR_TESTS_ADMIN")); }

bool Scene::table_exists(const std::wstring& name) const {
  try {
    session().rows(L"SELECT Count(*) FROM " + name, 1);
    return true;
  } catch (const qvrlib21::Failure&) {
    return false;
  }
}

}  // namespace qvr::tests
