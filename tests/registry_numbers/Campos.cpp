#include "oryutils/platform/Pastas.hpp"
#include "oryutils/registry_numbers/MotivoRecusa.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseCRC.hpp"
#include "oryutils/registry_numbers/interno/Enderecos.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "registry_numbers/Frame.hpp"

namespace OryUtils {
namespace {

using namespace Interno;

TEST(Crc, PeloMotivoCerto) {
    struct TCaso {
        std::u16string_view Numero;
        TMotivoRecusa Motivo;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"1SP123456O5", mrNenhum, "sum 149, remainder 6"},
        {u"2RJ719683T7", mrNenhum, "a technician"},
        {u"9RO987541S4", mrNenhum, "the last unit of the table"},
        {u"4AC356278P2", mrNenhum, "the last kind"},
        {u"4AC356278P3", mrDigito, "and the digit after its own"},
        {u"1SP123456/O-5", mrDigito, "punctuation is not dropped"},
        {u"1SP123456O5X", mrNenhum, "a longer text is cut to eleven"},
        {u"1SP123456O", mrTamanho, "ten characters"},
        {u"", mrVazio, "nothing"},
        {u"1ZZ123456O7", mrNenhum, "a unit out of the table counts 00"},
        {u"1SP123454O0", mrNenhum, "remainder 0: digit 11 becomes 0"},
        {u"1GB123456O2", mrNenhum, "the old unit GB is 22"},
        {u"ÇÇÇÇÇÇÇÇÇÇÇ", mrNenhum, "nothing but zeros: remainder 0, digit 0"},
    };
    for (const TCaso& caso : casos) {
        TOryUtilsValidacoesCRC crc;
        EXPECT_FALSE(crc.GetValido());
        crc.SetCRC(caso.Numero);
        EXPECT_EQ(crc.GetCRC(), caso.Numero.substr(0, 11));
        crc.Validar();
        EXPECT_EQ(crc.GetMotivo(), caso.Motivo) << caso.Porque;
        EXPECT_EQ(ValidouCRC(caso.Numero), caso.Motivo == mrNenhum) << caso.Porque;
    }
}

TEST(Email, PeloMotivoCerto) {
    struct TCaso {
        std::u16string_view Endereco;
        TRecusaEmail Motivo;
    };
    const TCaso casos[] = {
        {u" \t", reNenhuma},
        {u"a.b@cd.ef", reNenhuma},
        {u"ã@cd.ef", reNenhuma},
        {u"a'b@cd.ef", reNenhuma},
        {u"com.pra@comp.ef", reNenhuma},  // only the first "com" counts
        {u"\u0421\u041C@cd.ef", reNenhuma},
        {u"abc", reSemArroba},
        {u"a@ef", reSemPonto},
        {u"@a.b", reInicio},
        {u".a@cd.ef", reInicio},
        {u"_a@cd.ef", reInicio},
        {u"-a@cd.ef", reInicio},
        {u"a.b@", reFim},
        {u"a@cd.ef.", reFim},
        {u"a b@cd.ef", reEspaco},
        {u"a@.ef", reVizinho},
        {u"a.@cd.ef", reVizinho},
        {u"a@-cd.ef", reVizinho},
        {u"a_@cd.ef", reVizinho},
        {u"a@comp.ef", reVizinho},
        {u"ç@cd.ef", reCaractere},
        {u"a@c,d.ef", reCaractere},
        {u"a..b@cd.ef", rePontoDobrado},
        {u"a@b@cd.ef", reArrobaDobrada},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(ConferirEmail(caso.Endereco), caso.Motivo) << ParaUtf8(caso.Endereco);
    for (const std::u16string_view especial : CCarateresEspeciais) {
        const std::u16string endereco = u"a" + std::u16string(especial) + u"b@cd.ef";
        EXPECT_EQ(TOryUtilsValidacoes::ValidouEmail(endereco), especial.empty()) << ParaUtf8(endereco);
    }
}

TEST(Email, Lista) {
    struct TCaso {
        std::vector<std::u16string> Enderecos;
        TResultStatus Esperado;
    };
    const TCaso casos[] = {
        {{}, {false, u"Não é possível validar a lista de e-mail. Lista vazia."}},
        {{u"", u"a@b.c", u" "}, {}},
        {{u"um", u"a@b.c", u"dois@"}, {false, u"Os seguintes endereços de e-mail são inválidos: \r\n\r\num\r\ndois@"}},
    };
    for (const TCaso& caso : casos) {
        TResultStatus status{false, u"de antes"};
        TOryUtilsValidacoes::ValidouListaEmail(caso.Enderecos, status);
        EXPECT_EQ(status, caso.Esperado) << caso.Enderecos.size();
    }
}

TEST(EnderecoIp, PeloMotivoCerto) {
    struct TCaso {
        std::u16string Endereco;
        TRecusaIp Motivo;
    };
    const TCaso casos[] = {
        {u" ", riNenhuma},
        {u" 192.168.0.1 ", riNenhuma},
        {u"255.255.255.255", riNenhuma},
        {u"10.0.0.0300", riNenhuma},
        {u"0999.1.1.1", riNenhuma},
        {u"192.168.0", riPartes},
        {u"192.168.0.1.5", riPartes},
        {u"192.168.0.256", riValor},
        {u"192.168..1", riParte},
        {u"1.1.1.09999999999", riParte},  // beyond 32 bits
        {u"a.b.c.d", riCaractere},
        {u"1.1.1.-1", riCaractere},
        {u"1.1.1.\u0661", riCaractere},
        {std::u16string(256, u'1'), riPartes},  // the scan covers nothing
        {u"1.1.1." + std::u16string(257, u'0'), riNenhuma},
        {u"1.1.1.1" + std::u16string(256, u'x'), riParte},  // unseen by the scan, refused by the conversion
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(ConferirEnderecoIp(caso.Endereco), caso.Motivo) << ParaUtf8(caso.Endereco);
}

TEST(CaractereControle, PorTipoDeCampo) {
    struct TCaso {
        char16_t Caractere;
        std::u16string_view Texto;
        int Tipo;
        int Quantidade;
        bool Esperado;
    };
    const TCaso casos[] = {
        {u',', u"12,5", 6, 0, false}, {u',', u"12,5", 6, 1, true}, {u'.', u"12,5", 6, 0, true},
        {u',', u"125", 6, 0, true},   {u'-', u"", 6, 9, false},    {u'7', u"", 6, 0, true},
        {8, u"", 6, 0, true},         {u',', u"", 3, 9, false},    {u'\u0661', u"", 3, 0, false},
        {8, u"", 3, 0, true},         {u'x', u"", 1, 0, true},     {u',', u",,", 6, 65535, true},
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(ValidouCaractereControle(caso.Caractere, caso.Texto, static_cast<TFieldType>(caso.Tipo),
                                           static_cast<std::uint16_t>(caso.Quantidade)),
                  caso.Esperado)
            << static_cast<int>(caso.Caractere) << " " << ParaUtf8(caso.Texto) << " " << caso.Tipo;
    // What each kind of field takes, the whole domain.
    const std::u16string inteiros = u"\x02\x03\x19";
    const std::u16string decimais = u"\x06\x07\x08\x25\x2D";
    for (int tipo = -1; tipo < 60; ++tipo) {
        const auto campo = static_cast<TFieldType>(tipo);
        const auto codigo = static_cast<char16_t>(tipo);
        const bool inteiro = inteiros.find(codigo) != inteiros.npos;
        const bool decimal = decimais.find(codigo) != decimais.npos;
        EXPECT_EQ(ValidouCaractereControle(u'x', u"", campo, 0), !inteiro && !decimal) << tipo;
        EXPECT_EQ(ValidouCaractereControle(u',', u"", campo, 0), !inteiro) << tipo;
    }
}

class Campos : public Frame {
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

TEST_F(Campos, RelatamSoOQueFalhaESoNaVezDoControle) {
    using R = TOryUtilsValidacoes;
    using TRegra = decltype(TCasoDeRegra::Validar);
    const TRegra data = [](auto... AArgs) { EXPECT_TRUE(ValidarData(AArgs...)); };
    const TRegra hora = [](auto... AArgs) { EXPECT_TRUE(ValidouHora(AArgs...)); };
    const TRegra dataHora = [](auto... AArgs) { EXPECT_TRUE(ValidouDataHora(AArgs...)); };
    const TRegra ip = [](auto... AArgs) { EXPECT_TRUE(ValidarIPAddress(AArgs...)); };
    const TRegra lista = [](auto... AArgs) { R::ValidarListaEmail(AArgs..., u";"); };
    const TRegra listaSemMensagem = [](const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                       std::u16string_view) {
        R::ValidarListaEmail(ASender, AControle, AValor, u"", u";");
    };
    const TRegra periodo = [](const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                              std::u16string_view AMensagem) {
        const auto meio = AValor.find(u'-');
        ValidarDataInicioFim(ASender, AControle, AValor.substr(0, meio), AValor.substr(meio + 1), AMensagem);
    };
    const char* const relata = "Falhou.";
    const TCasoDeRegra casos[] = {
        {ValidarCRC, u"1SP123456O5", "nada"},
        {ValidarCRC, u"", relata},
        {R::ValidarEmail, u" a@b.c ", "nada"},
        {R::ValidarEmail, u"a@ef", relata},
        {lista, u"a@b.c; d@e.f ;", "nada"},
        {lista, u"a@b.c;d@", relata},
        {listaSemMensagem, u"", "Não é possível validar a lista de e-mail. Lista vazia."},
        {listaSemMensagem, u"x;a@b.c", "Os seguintes endereços de e-mail são inválidos: \r\n\r\nx"},
        {data, u" 29/02/2024 ", "nada"},
        {data, u"29/02/2023", relata},
        {data, u"31/12/1899", "nada"},
        {data, u"30/12/1899", relata},
        {hora, u"00:01", "nada"},
        {hora, u"00:00", relata},
        {hora, u"agora", relata},
        {dataHora, u"05/03/2024 14:07", "nada"},
        {dataHora, u"30/12/1899 00:00", relata},
        {ip, u"192.168.0.1", "nada"},
        {ip, u"", "nada"},
        {ip, u"192.168.0", relata},
        {periodo, u"10/05/2024-01/05/2024", relata},
        {periodo, u"01/05/2024-01/05/2024", "nada"},
        {periodo, u"10/05/2024-", "nada"},
        {periodo, u"10/05/2024-30/12/1899", "nada"},
        {R::ValidarCampoNomeComponente, u" _Edit1 ", "nada"},
        {R::ValidarCampoNomeComponente, u"1Edit", relata},
        {R::ValidarCampoNomeComponente, u"Edição", relata},
        {R::ValidarCampoNomeComponente, u"", relata},
        {R::ValidarCampoNomeArquivo, u"nota fiscal.xml", "nada"},
        {R::ValidarCampoNomeArquivo, u"a/b", relata},
        {R::ValidarCampoNomeArquivo, u"", "nada"},
        {ValidarDiretorio, u" .. ", "nada"},
        {ValidarDiretorio, u"", relata},
        {ValidarDiretorio, u"pasta que não existe", relata},
    };
    Conferir(casos);
}

TEST_F(Campos, PeriodoDeDataHora) {
    const auto relato = [&](double AInicio, double AFim) {
        return Relato([&] { ValidarDataInicioFim(nullptr, &Controle, TDateTime(AInicio), TDateTime(AFim), u"F"); });
    };
    EXPECT_EQ(relato(2.5, 2.25), "F");
    EXPECT_EQ(relato(2.5, 2.5), "nada");
    EXPECT_EQ(relato(2.5, 0), "nada");
    EXPECT_EQ(relato(2.5, -1), "nada");
}

TEST_F(Campos, ConteudoVariavel) {
    using R = TOryUtilsValidacoes;
    EXPECT_EQ(Relato([&] { R::ValidarConteudoVariavel(nullptr, &Controle, true, u"F"); }), "F");
    EXPECT_EQ(Relato([&] { R::ValidarConteudoVariavel(&Controle, &Controle, false, u"F"); }), "nada");
    EXPECT_EQ(Relato([&] { R::ValidarConteudoVariavel(&Outro, &Controle, true, u"F"); }), "nada");
    EXPECT_EQ(Relato([&] { R::ValidarConteudoVariavel(&Outro, nullptr, true, u"F"); }), "nada");
    GRelatos.clear();
    EXPECT_THROW(R::ValidarConteudoVariavel(nullptr, nullptr, true, u"F"), EAbort) << "neither: it always applies";
    EXPECT_EQ(GRelatos, (std::vector<std::u16string>{u"F"}));
}

TEST(Pastas, SoAsQueExistem) {
    EXPECT_TRUE(Interno::ExistePasta(u"."));
    EXPECT_FALSE(Interno::ExistePasta(u""));
    EXPECT_FALSE(Interno::ExistePasta(std::u16string_view(u".\0x", 3))) << "nothing is cut off at a zero";
    EXPECT_FALSE(Interno::ExistePasta(u"\xD800"));
    EXPECT_FALSE(Interno::ExistePasta(std::u16string(1 << 20, u'a')));
    for (const char16_t c : std::u16string_view(u"abc ção-_.;\xD800"))
        EXPECT_FALSE(Interno::EhProibidoEmNomeDeArquivo(c)) << static_cast<int>(c);
}

}  // namespace
}  // namespace OryUtils
