// A stored file: every system and every later build writes and reads the same bytes.
#include <gtest/gtest.h>

#include "connection/sample_parameters.h"
#include "services/builtin_text_protection.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr TextView kId = u"App de gesti\u00f3n";

constexpr std::string_view kFile =
    "1dq235ezo6febzwaobv2nlok7fbky4mrlshydwrxxuqqu7vk35on4jnnj2q56mppt4paasur6eqfbk\r\n"
    "1uohrghn5e5k3lmxv56medrejtgvapizrp6ae5ef4cfzgftpbf24yqooptnzukwcvo5eulatimvpwo\r\n"
    "15q53nqiw7v5cylgcr4wxyaovklnbsgsw3bwwu5n6ilatwmotopo7woalsbfovea5uhu2cmxywcdio\r\n"
    "1f725ftc55tdxdgugpdb7675d7ytjhxogezpdrvj4j2npjk6m7pl3bl4mdov7j42rvojgajq6aj3cq\r\n"
    "164kst3etvqcgmi2wxwwfvvlhh7zcnudie5teeco64iwpfx7s6gwkmqo5ik6v63u4xm7rtt2m4i3zo\r\n"
    "1wsr4slzua7jvuen7x2kcz33gfeet4b6xkbb76subzhr4qy57zg5wiulxzfgacnit57jpq24wzbnsm\r\n"
    "1b66eugrsfixil2gktpalbo7jaey7i5n3pgq47afj4oe33oozrp2zh7n7shtmihx7woljgn6q5tecg\r\n"
    "1edpvmnaxu5q6y5nxk4vts6vk5h34ckpzhsrn6bvhm2x6kt5xyzkcdxexjzy2n2cetol5s5fxws7kw\r\n"
    "13spfuyomkjmujeycjwiukfxdlhwjfatyxqwptrirzp6wdmjdnd6ettfb4onq5mljxedjal5wux7f4\r\n"
    "1c563bmomya4eu3bm3ouj73t6qx6ljmzgfcjubaizbp52mf5i3tk2fiyprhpjxbzxrxnofmy7rwrtvvvhxy2q2zvrqrcmokbq4rfxu3b3v3ua4ioz2"
    "gzktit2zg7gbnfu45d6rv5kcxadykuxwx6tfwuryjjwuawncymj2lebx4dbw7gbw7fa\r\n";

class CfpKnownFileTest : public ::testing::Test {
 protected:
  CfpKnownFileTest() {
    thread.files.keep_in_memory();
    thread.make_text_protection = [] {
      return std::make_unique<services::BuiltinTextProtection>(system_platform().cryptography);
    };
  }

  TestThread thread;
};

TEST_F(CfpKnownFileTest, IsRead) {
  thread.files.memory[u"F\\a.cfp"] = kFile;
  QVRcfp cfp;
  EXPECT_TRUE(cfp.Crear(kId, u"F", u"a"));
  expect_parameters(cfp, sample_parameters(), u"a");
}

TEST_F(CfpKnownFileTest, IsWritten) {
  QVRcfp cfp;
  ASSERT_TRUE(cfp.Asignar(kId, sample_parameters()));
  EXPECT_TRUE(cfp.Guardar(kId, u"F", u"a"));
  EXPECT_EQ(thread.files.memory[u"F\\a.cfp"], kFile);
}

TEST_F(CfpKnownFileTest, IsReadWithItsCheckLineInUpperCase) {
  std::string bytes(kFile);
  const std::size_t check = bytes.rfind('\n', bytes.size() - 2) + 1;
  for (std::size_t i = check; i < bytes.size(); ++i) {
    if (bytes[i] >= 'a' && bytes[i] <= 'z') bytes[i] = static_cast<char>(bytes[i] - 0x20);
  }
  thread.files.memory[u"F\\a.cfp"] = bytes;
  QVRcfp cfp;
  EXPECT_TRUE(cfp.Crear(kId, u"F", u"a"));
}

// Written before long passwords were hashed ahead of their derivation.
constexpr std::string_view kFileOfALongIdentification =
    "1fx2zel265ejlbswqksqe2urfjywuezuar36vz2ramq5zkoyk2ytklqequvxpaitdbbppbhfd2dike\r\n"
    "1tbmkxwfddt6khn6jrafclnfoxde5ckrlursqi4p72r4h47zbeinkgrqqxwhch6eilge43pud4pbnw\r\n"
    "1zrckfjkqwgnom27egrxijvidrx6ogh2o7s6vimxg7adkqcp6knjwyz6ib6kd5fzvwjcn3xgpoq256\r\n"
    "1poividqoj2x5jexvdcxvzuo66fl7aavkqeru67ghm5maj4nd23aqmq4y3zaydvno5snhwqfgldh4g\r\n"
    "1673hcwtud42phwcktsbincyyy2wjqgiz37vbilcjmrvns3jvoc6srzzivgswb3jvwugkravufpgrq\r\n"
    "15ncbirlqkebkepwbtf2wv2blm6hateonhqgghgudctazdtapejjczfp6to7qgvzk7m5267vgkhk52\r\n"
    "1xwgap376qqnllawqm4dukoaqq5yjsuapvuiv2jdwu2xwj4pf2mzdhfyyjmyap3drhrjlrbgoz7iwq\r\n"
    "1tr4gkblwowyhqqrip6qfvfuemdhqe22oc5m3xcrgqqrduvqy5iyuhztqjvvykjs7b2sclidvq3pv4\r\n"
    "1iod57imrccnxh7ntn3mkwxk3nq2mvz7klk72m6shl52mdjf7yrr4zzlqnj7m5pd7rt3w5uvswykos\r\n"
    "1gqdbvpuznhruys33htjqzv2tnusru4zrw4kzb4egmm73rzt2ozgg2yehir4hjv7pbyktu36me3u2k6choxfmdureprix7ccplcvkfgbz2ntqp"
    "ycksndlfvkkot5hab4drgzlcdumo54bh4axus2cfaob5iy6nw3zsubbwokjypl6vj4yutma\r\n";

Text long_identification() {
  Text id;
  while (id.size() < 10000) id += u"identificaci\u00f3n ";
  id.resize(10000);
  return id;
}

TEST_F(CfpKnownFileTest, IsReadAndWrittenUnderALongIdentification) {
  thread.files.memory[u"F\\a.cfp"] = kFileOfALongIdentification;
  QVRcfp cfp;
  EXPECT_TRUE(cfp.Crear(long_identification(), u"F", u"a"));
  expect_parameters(cfp, sample_parameters(), u"a");
  ASSERT_TRUE(cfp.Asignar(kId, sample_parameters()));
  EXPECT_TRUE(cfp.Guardar(long_identification(), u"F", u"b"));
  EXPECT_EQ(thread.files.memory[u"F\\b.cfp"], kFileOfALongIdentification);
}

TEST_F(CfpKnownFileTest, IsRefusedUnderAnotherIdentification) {
  thread.files.memory[u"F\\a.cfp"] = kFile;
  QVRcfp cfp;
  EXPECT_FALSE(cfp.Crear(u"App de gestion", u"F", u"a"));
  expect_cleared(cfp);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 5 The protected text is damaged or was written with another key"});
}

}  // namespace
}  // namespace qvr::tests
