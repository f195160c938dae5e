// Ranges: which end is the first one, what negates them, and what only looks like one.
#include "query/search_fixture.h"

namespace qvr::tests {
namespace {

class SearchRanges : public SpanishSearch {};

TEST_F(SearchRanges, EndWhereTheirLastPeriodEnds) {
  expect(kAlta, kJet,
         {{u"15/02/2011..2011", u"C.Alta>=#2011-02-15# And C.Alta<#2012-01-01#", u"Alta >= 15/02/2011 y <= 31/12/2011"},
          {u"hoy..2011", u"C.Alta>=#2011-01-05# And C.Alta<#2012-01-01#", u"Alta >= 05/01/2011 y <= 31/12/2011"},
          {u"02/2011..2011", u"C.Alta>=#2011-02-01# And C.Alta<#2012-01-01#", u"Alta >= 01/02/2011 y <= 31/12/2011"},
          {u"desde 15/02/2011 hasta 02/2011", u"C.Alta>=#2011-02-15# And C.Alta<#2011-03-01#",
           u"Alta >= 15/02/2011 y <= 28/02/2011"},
          {u"2011..15/02/2011", u"C.Alta>=#2011-01-01# And C.Alta<#2011-02-16#", u"Alta >= 01/01/2011 y <= 15/02/2011"},
          {u"!15/02/2011..2011", u"C.Alta<#2011-02-15# Or C.Alta>=#2012-01-01# Or (C.Alta Is Null)",
           u"Alta < 15/02/2011; > 31/12/2011; Es Nulo"}});
  expect(kAlta, kSqlServer,
         {{u"05/01/2011 14:07..05/01/2011", u"C.Alta>={ ts '2011-01-05 14:07:00'} And C.Alta<{ d '2011-01-06'}",
           u"Alta >= 05/01/2011 14:07 y <= 05/01/2011"}});
}

TEST_F(SearchRanges, ThatWouldBeEmptyAreReversed) {
  expect(kAlta, kJet,
         {{u"2011..2010", u"C.Alta>=#2010-01-01# And C.Alta<#2012-01-01#", u"Alta >= 01/01/2010 y <= 31/12/2011"},
          {u"2011..31/12/2010", u"C.Alta>=#2010-12-31# And C.Alta<#2012-01-01#",
           u"Alta >= 31/12/2010 y <= 31/12/2011"}});
}

// The last end stands for all that begins with it.
TEST_F(SearchRanges, OfTextsEndBehindAllThatBeginsWithTheirLastEnd) {
  expect(kNombre, kJet,
         {{u"martin..M", u"C.Nombre>='martin' And (C.Nombre<='M' Or C.Nombre LIKE 'M%')", u"Nombre >= martin y <= M*"},
          {u"martin..k", u"C.Nombre>='k' And (C.Nombre<='martin' Or C.Nombre LIKE 'martin%')",
           u"Nombre >= k y <= martin*"}});
}

}  // namespace
}  // namespace qvr::tests
