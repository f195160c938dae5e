// What somebody types into the search box of a list that is there, beside adding the condition that it stands for.
#include <array>

#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr const wchar_t* kDateInWords = L"este mes";
constexpr int kCalls = 1000, kRounds = 15;

struct Search {
  const char* name;
  const wchar_t* column;
  std::wstring typed;
};

std::wstring convention(LCTYPE which) {
  wchar_t text[16] = L"";
  GetLocaleInfoW(LOCALE_USER_DEFAULT, which, text, static_cast<int>(std::size(text)));
  return text;
}

std::vector<Search> searches() {
  const std::wstring number = L"1" + convention(LOCALE_STHOUSAND) + L"234" + convention(LOCALE_SDECIMAL) + L"5";
  return {{"SearchText", L"Nombre", L"ana l\u00f3pez"},
          {"SearchNumber", L"Saldo", L">=" + number},
          {"SearchDateInFigures", L"Alta", L"2011-01-05"},
          {"SearchDateInWords", L"Alta", kDateInWords}};
}

class List {
 public:
  List() {
    const Var columns = array_of({L"C.Nombre", L"T+", L"C.Saldo", L"N+", L"C.Alta", L"F+"});
    require_true(query_.call(L"iSQL20_Crear", {2, L"Clientes", false, columns, L"Clientes C"}));
  }

  // Calls the member with both texts on the original list: what is there already would not be added again.
  void narrow(DISPID member, const Var& first, const Var& second) const {
    std::array<VARIANT, 2> conditions_alone{Var(false).raw(), Var(true).raw()}, texts{second.raw(), first.raw()};
    call(query_, restore_, conditions_alone);
    VARIANT narrowed;
    VariantInit(&narrowed);
    call(query_, member, texts, &narrowed);
    require(narrowed.boolVal == VARIANT_TRUE, "the list was not narrowed by " + tests::narrow(second.text()));
  }

  DISPID member(const wchar_t* name) const { return id_of(query_, name); }

  std::wstring text(const wchar_t* property) const {
    const LateAnswer answer = query_.get(property);
    require(answer);
    return answer.value.text();
  }

  // The only one that was added, without its parentheses.
  std::wstring condition() const {
    const std::wstring whole = text(L"iSQL20_CriterioActualCompleto"), added = whole.substr(0, whole.find(L"<*"));
    require(added.starts_with(L'(') && added.ends_with(L')'), "no condition was added");
    return added.substr(1, added.size() - 2);
  }

 private:
  LateObject query_{L"QVRlib21.cSQL20"};
  DISPID restore_ = member(L"iSQL20_RestauraOriginal");
};

void measure(const List& list, const Search& search, Times& times) {
  const DISPID interpret = list.member(L"iSQL20_InterpretarBusqueda"),
               add = list.member(L"iSQL20_AmpliarCondicionWhere");
  const Var column(search.column), typed(search.typed);
  list.narrow(interpret, column, typed);
  const std::wstring statement = list.text(L"iSQL20_SQL");
  const Var condition(list.condition()), criterion(list.text(L"iSQL20_CriterioActual"));
  list.narrow(add, condition, criterion);
  require(list.text(L"iSQL20_SQL") == statement, "the condition is not the one that the search stands for");
  times.beside(
      search.name, [&] { list.narrow(interpret, column, typed); }, [&] { list.narrow(add, condition, criterion); },
      kCalls, kRounds);
}

}  // namespace

void measure_search_box(Times& times) {
  const List list;
  for (const Search& search : searches()) measure(list, search, times);
}

}  // namespace qvr::bench
