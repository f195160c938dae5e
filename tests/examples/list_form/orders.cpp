#include "orders.h"

#include <iterator>

namespace qvr::tests {
namespace {

constexpr int kFirstNumber = 1001;
const char* const kOrders[] = {
    "1001, Ana López, Madrid, 1/5/2024, 0, no",
    "1002, Mariana Costa, Porto, 1/8/2024, 919.25, yes",
    "1003, Hansen & Søn, Aarhus, 1/11/2024, 838.5, yes",
    "1004, Bernard O'Neil, Dublin, 1/14/2024, 757.75, yes",
    "1005, Tienda Sur S.L., Cádiz, 1/17/2024, 676, no",
    "1006, Luis Pérez, Madrid, 1/20/2024, 595.25, yes",
    "1007, Carla Núñez, Zaragoza, 1/23/2024, 514.5, yes",
    "1008, Ana López, Madrid, 1/26/2024, 433.75, yes",
    "1009, Mariana Costa, Porto, 1/29/2024, 352, no",
    "1010, Hansen & Søn, Aarhus, 2/1/2024, 271.25, yes",
    "1011, Bernard O'Neil, Dublin, 2/4/2024, 190.5, yes",
    "1012, Tienda Sur S.L., Cádiz, 2/7/2024, 109.75, yes",
    "1013, Luis Pérez, Madrid, 2/10/2024, 28, no",
    "1014, Carla Núñez, Zaragoza, 2/13/2024, 947.25, yes",
    "1015, Ana López, Madrid, 2/16/2024, 866.5, yes",
    "1016, Mariana Costa, Porto, 2/19/2024, 785.75, yes",
    "1017, Hansen & Søn, Aarhus, 2/22/2024, 704, no",
    "1018, Bernard O'Neil, Dublin, 2/25/2024, 623.25, yes",
    "1019, Tienda Sur S.L., Cádiz, 2/28/2024, 542.5, yes",
    "1020, Luis Pérez, Madrid, 3/2/2024, 461.75, yes",
    "1021, Carla Núñez, Zaragoza, 3/5/2024, 380, no",
    "1022, Ana López, Madrid, 3/8/2024, 299.25, yes",
    "1023, Mariana Costa, Porto, 3/11/2024, 218.5, yes",
    "1024, Hansen & Søn, Aarhus, 3/14/2024, 137.75, yes",
    "1025, Bernard O'Neil, Dublin, 3/17/2024, 56, no",
    "1026, Tienda Sur S.L., Cádiz, 3/20/2024, 975.25, yes",
    "1027, Luis Pérez, Madrid, 3/23/2024, 894.5, yes",
    "1028, Carla Núñez, Zaragoza, 3/26/2024, 813.75, yes",
    "1029, Ana López, Madrid, 3/29/2024, 732, no",
    "1030, Mariana Costa, Porto, 4/1/2024, 651.25, yes",
    "1031, Hansen & Søn, Aarhus, 4/4/2024, 570.5, yes",
    "1032, Bernard O'Neil, Dublin, 4/7/2024, 489.75, yes",
    "1033, Tienda Sur S.L., Cádiz, 4/10/2024, 408, no",
    "1034, Luis Pérez, Madrid, 4/13/2024, 327.25, yes",
    "1035, Carla Núñez, Zaragoza, 4/16/2024, 246.5, yes",
    "1036, Ana López, Madrid, 4/19/2024, 165.75, yes",
    "1037, Mariana Costa, Porto, 4/22/2024, 84, no",
    "1038, Hansen & Søn, Aarhus, 4/25/2024, 3.25, yes",
    "1039, Bernard O'Neil, Dublin, 4/28/2024, 922.5, yes",
    "1040, Tienda Sur S.L., Cádiz, 5/1/2024, 841.75, yes",
    "1041, Luis Pérez, Madrid, 5/4/2024, 760, no",
    "1042, Carla Núñez, Zaragoza, 5/7/2024, 679.25, yes",
    "1043, Ana López, Madrid, 5/10/2024, 598.5, yes",
    "1044, Mariana Costa, Porto, 5/13/2024, 517.75, yes",
    "1045, Hansen & Søn, Aarhus, 5/16/2024, 436, no",
    "1046, Bernard O'Neil, Dublin, 5/19/2024, 355.25, yes",
    "1047, Tienda Sur S.L., Cádiz, 5/22/2024, 274.5, yes",
    "1048, Luis Pérez, Madrid, 5/25/2024, 193.75, yes",
    "1049, Carla Núñez, Zaragoza, 5/28/2024, 112, no",
    "1050, Ana López, Madrid, 5/31/2024, 31.25, yes",
    "1051, Mariana Costa, Porto, 6/3/2024, 950.5, yes",
    "1052, Hansen & Søn, Aarhus, 6/6/2024, 869.75, yes",
    "1053, Bernard O'Neil, Dublin, 6/9/2024, 788, no",
    "1054, Tienda Sur S.L., Cádiz, 6/12/2024, 707.25, yes",
    "1055, Luis Pérez, Madrid, 6/15/2024, 626.5, yes",
    "1056, Carla Núñez, Zaragoza, 6/18/2024, 545.75, yes",
    "1057, Ana López, Madrid, 6/21/2024, 464, no",
    "1058, Mariana Costa, Porto, 6/24/2024, 383.25, yes",
    "1059, Hansen & Søn, Aarhus, 6/27/2024, 302.5, yes",
    "1060, Bernard O'Neil, Dublin, 6/30/2024, 221.75, yes",
};

}  // namespace

std::vector<std::string> all_orders() { return {std::begin(kOrders), std::end(kOrders)}; }

std::vector<std::string> orders(std::initializer_list<int> numbers) {
  std::vector<std::string> rows;
  for (const int number : numbers) rows.emplace_back(kOrders[number - kFirstNumber]);
  return rows;
}

}  // namespace qvr::tests
