// Any text as what systemctl and sc answer; any name, account and password as part of a command or of a unit's file:
// none of them becomes another argument or another line.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"
#include "oryutils/readers/UnidadesSystemd.hpp"
#include "oryutils/system/interno/ComandosServico.hpp"

#include "Comum.hpp"

#include <algorithm>

using namespace OryUtils;
using namespace OryUtils::Interno;

namespace {

/// The arguments of a command with values as they come in: as many as with harmless ones.
std::vector<std::u16string> Partes(std::u16string_view ALinha, std::u16string_view AInofensiva) {
    auto partes = SepararLinhaDeComando(ALinha);
    Fuzz::Exigir(partes.size() == SepararLinhaDeComando(AInofensiva).size());
    return partes;
}

void Montar(const std::u16string& AServico, const std::u16string& AOutro, const std::u16string& ASenha) {
    Fuzz::Exigir(SepararArgumentos(u"\"" + EscaparEntreAspas(AServico) + u"\"") == std::vector{AServico});
    Partes(MontarComandoRecuperacao(AServico), MontarComandoRecuperacao(u"a"));
    Partes(MontarComandoDependencia(AServico, AOutro), MontarComandoDependencia(u"a", u"b"));
    Fuzz::Exigir(Partes(MontarComandoLogon(AServico, AOutro, ASenha), MontarComandoLogon(u"a", u"b", u"c")).back() ==
                 ASenha);
}

void MontarUnidadeDe(const std::string& ANome, const std::string& AExecutavel) {
    for (const bool ehCaminho : {false, true}) {
        const std::string unidade = MontarUnidade(ANome, AExecutavel, ehCaminho);
        if (unidade.empty()) continue;
        Fuzz::Exigir(std::ranges::count(unidade, '\n') == std::ranges::count(MontarUnidade("a", "/b", true), '\n'));
        Fuzz::Exigir(
            std::ranges::none_of(unidade, [](char c) { return c != '\n' && static_cast<unsigned char>(c) < 32; }));
    }
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    const std::string bytes = TEntrada(AEntrada).Bytes();
    if (const auto situacao = LerSituacaoUnidade(bytes)) Exigir(situacao->Estado >= 1 && situacao->Estado <= 7);
    if (EhNomeDeUnidade(bytes))
        Exigir(!bytes.empty() && bytes.front() != '-' && bytes.front() != '.' &&
               bytes.find_first_of(std::string_view("/\n\0 ;$\"'", 8)) == std::string::npos);

    const std::u16string servico = AEntrada.Texto(40), outro = AEntrada.Texto(40), senha = AEntrada.Texto(40);
    Montar(servico, outro, senha);
    MontarUnidadeDe(ParaUtf8(servico), ParaUtf8(outro));
    const std::u16string saida = TEntrada(AEntrada).Resto();
    Exigir(!SaidaIndicaFalha(saida) || SaidaIndicaFalha(saida + u"x"));
    Exigir(MontarMensagemFalha(u"a", saida).find(saida) != std::u16string::npos);
}
