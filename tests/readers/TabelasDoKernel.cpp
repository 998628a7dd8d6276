#include "oryutils/readers/TabelaDeMontagens.hpp"
#include "oryutils/readers/TabelasDeRede.hpp"

#include <gtest/gtest.h>

namespace OryUtils::Interno {
namespace {

TEST(TabelasDoKernel, TabelaDeMontagens) {
    const char* tabela =
        "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
        "27 1 254:0 / / rw - ext4 /dev/vda rw\n"
        "40 27 8:2 / /mnt/dados\\040do\\134x rw shared:1 master:2 - xfs /dev/sda2 rw\n"
        "41 27 8:3 / /boot rw - vfat /dev/sda3 rw\n"
        "42 27 8:2 /sub /srv rw - xfs /dev/sda2 rw\n"
        "43 27 7:1 / /snap/core ro - squashfs /dev/loop1 ro\n"
        "44 27 0:50 / /mnt/rede rw - nfs4 servidor:/x rw\n"
        "45 27 0:51 / /tmp rw - tmpfs tmpfs rw\n"
        "46 27 254:0 /etc/hosts /etc/hosts rw - ext4 /dev/vda rw\n"
        "sobra\n47 27 8:9 / /cortada rw - ext4\n";
    const std::vector<TMontagem> esperadas{
        {"/", "/dev/vda"}, {"/boot", "/dev/sda3"}, {"/mnt/dados do\\x", "/dev/sda2"}, {"/mnt/rede", "servidor:/x"}};
    EXPECT_EQ(LerTabelaDeMontagens(tabela), esperadas);
    const std::vector<TMontagem> nenhuma{{"/", ""}};
    EXPECT_EQ(LerTabelaDeMontagens(""), nenhuma);
    const std::vector<TMontagem> sobreposta{{"/", "overlay"}};
    EXPECT_EQ(LerTabelaDeMontagens("1 1 0:1 / / rw - rootfs rootfs rw\n2 1 0:2 / / rw - overlay overlay rw"),
              sobreposta);
}

TEST(TabelasDoKernel, VizinhosERotas) {
    constexpr std::string_view CVizinhos =
        "IP address       HW type     Flags       HW address            Mask     Device\n"
        "192.0.2.1        0x1         0x2         02:fc:00:00:00:05     *        eth0\n"
        "192.0.2.7        0x1         0x0         00:00:00:00:00:00     *        eth0\n"
        "192.0.2.8        0x20        0x2         02:fc:00:00:00:08     *        ib0\n"
        "192.0.2.9        0x1         0x6         0a:0B:0c:0d:0e:ff     *        eth0";
    const auto procurar = [&](std::uint8_t AUltimo) { return ProcurarVizinho(CVizinhos, {192, 0, 2, AUltimo}); };
    EXPECT_EQ(procurar(1), (TEnderecoMac{2, 0xFC, 0, 0, 0, 5}));
    EXPECT_EQ(procurar(9), (TEnderecoMac{10, 11, 12, 13, 14, 255})) << "a permanent entry";
    EXPECT_EQ(procurar(7), std::nullopt) << "asked for and not answered yet";
    EXPECT_EQ(procurar(8), std::nullopt) << "another kind of network";
    EXPECT_EQ(procurar(2), std::nullopt);

    constexpr std::string_view CRotas =
        "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
        "wlan0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
        "eth0\t00000000\t010200C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
        "down0\t00000000\t010200C0\t0002\t0\t0\t0\t00000000\t0\t0\t0\n"
        "eth0\t000200C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
        "eth0\t0000000A\t010200C0\t0003\t0\t0\t0\t000000FF\t0\t0\t0\n";
    EXPECT_EQ(BuscarInterfacePadrao(CRotas), "eth0");
    EXPECT_EQ(BuscarInterfacePadrao(CRotas.substr(0, CRotas.find('\n'))), "");
    EXPECT_TRUE(EstahNoEnlace(CRotas, {192, 0, 2, 77}));
    EXPECT_FALSE(EstahNoEnlace(CRotas, {192, 0, 3, 77})) << "by the gateway";
    EXPECT_FALSE(EstahNoEnlace(CRotas, {10, 1, 2, 3})) << "a route with a gateway of its own";
}

}  // namespace
}  // namespace OryUtils::Interno
