// A run of 20,000 INSERTs that nobody, one and five sinks listen to.
#include "QVRlib21.h"
#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr int kInserts = 20000, kRounds = 4;

// The run owns no reference that outlives it, so that a sink need not count them.
class CountingSink final : public IDispatch {
 public:
  int told() const { return told_; }

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(__QVRScr) ? this : nullptr;
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 1; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override {
    if (event == kProgreso && arguments->rgvarg[0].vt == (VT_BYREF | VT_BSTR)) ++told_;
    return S_OK;
  }

 private:
  int told_ = 0;
};

std::vector<std::wstring> commands() {
  std::vector<std::wstring> texts{L"CREATE TABLE Articulos (Codigo INTEGER, Nombre VARCHAR(40), Precio REAL)"};
  for (int i = 1; i <= kInserts; ++i) {
    texts.push_back(L"INSERT INTO Articulos VALUES ( " + std::to_wstring(i) + L", 'Tornillo de cabeza plana', 12.5)");
  }
  return texts;
}

// An empty database, and who listens to the run.
struct Place {
  explicit Place(std::size_t listeners) : sinks(listeners) {}

  void check() const {
    require(database.ask(L"select count(*) from Articulos") == std::to_string(kInserts), "not all rows are there");
    for (const CountingSink& sink : sinks) require(sink.told() > kInserts, "not all progress was told");
  }

  Database database;
  std::vector<CountingSink> sinks;
};

void by_library(Place& place, const std::wstring& script) {
  const LateObject runner(L"QVRlib21.QVRScr");
  ComPtr<IConnectionPoint> point;
  runner.as<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__QVRScr), &point);
  for (CountingSink& sink : place.sinks) {
    DWORD cookie = 0;
    require(SUCCEEDED(point->Advise(&sink, &cookie)), "Advise");
  }
  require_true(runner.call(L"EjecutarComandos", {L"bench", 2, script, connection_string(place.database)}));
}

void by_hand(Place& place, const std::vector<Var>& commands) {
  std::vector<IDispatch*> sinks;
  for (CountingSink& sink : place.sinks) sinks.push_back(&sink);
  run_by_hand(connection_string(place.database), commands, sinks);
}

}  // namespace

void measure_inserts(Times& times) {
  const std::vector<std::wstring> texts = commands();
  const std::vector<Var> ready(texts.begin(), texts.end());
  std::wstring script;
  for (const std::wstring& text : texts) script += text + L"\r\nGO\r\n";
  for (const std::size_t listeners : {0, 1, 5}) {
    times.beside_on(
        "Inserts" + std::to_string(listeners), [&] { return Place(listeners); },
        [&](Place& place) { by_library(place, script); }, [&](Place& place) { by_hand(place, ready); }, kRounds);
  }
  times.alone(
      "LooksForMessages",
      [] {
        for (int i = 0; i < kInserts; ++i) look_for_messages();
      },
      kRounds);
}

}  // namespace qvr::bench
