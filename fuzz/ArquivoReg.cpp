// Any text of an exported registry file and any edit: what is written reads back, and all other values stay.
#include "oryutils/readers/ArquivoReg.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

#include "Comum.hpp"

#include <map>

using namespace OryUtils;
using Interno::TArquivoReg;
using Interno::TChaveReg;
using Interno::TDadoRegistro;

namespace {

using TConteudo = std::map<std::u16string, std::map<std::u16string, TDadoRegistro>>;

// Every value of every key, by lower-case names.
void Ler(const TChaveReg& AChave, const std::u16string& ACaminho, TConteudo& AConteudo) {
    auto& valores = AConteudo[ACaminho];
    for (const auto& [nome, dado] : AChave.Valores) valores[MinusculaDe(nome)] = dado;
    for (const auto& [nome, subchave] : AChave.Subchaves)
        Ler(*subchave, ACaminho + u"\\" + MinusculaDe(nome), AConteudo);
}

TConteudo LerTudo(const TArquivoReg& AArquivo) {
    TConteudo conteudo;
    for (const auto& [nome, raiz] : AArquivo.Topo.Subchaves) Ler(*raiz, MinusculaDe(nome), conteudo);
    return conteudo;
}

const std::u16string CRaiz = u"HKEY_LOCAL_MACHINE";

// Pieces that such files are made of, and any character.
std::u16string MontarTexto(Fuzz::TEntrada& AEntrada) {
    static constexpr std::u16string_view CPedacos[] = {u"\r\n",   u"\n",   u"]\r\n",  u"[-",   u"\\a",     u"\\b",
                                                       u"\"n\"=", u"@=",   u"dword:", u"hex:", u"hex(7):", u"00,1",
                                                       u",",      u"\\\n", u"\\",     u"\"",   u"-\r\n",   u"; x"};
    std::u16string texto = u"Windows Registry Editor Version 5.00\r\n";
    // Everything is compared after each edit: few pieces, and many inputs.
    for (int n = AEntrada.Byte() % 64; n > 0 && !AEntrada.Acabou(); --n) {
        const std::uint8_t qual = AEntrada.Byte();
        texto += qual < 100   ? u"[" + CRaiz + u"\\a]\r\n"
                 : qual < 200 ? std::u16string(CPedacos[qual % std::size(CPedacos)])
                              : AEntrada.Texto(6);
    }
    return texto;
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static_cast<void>(Interno::LerArquivoReg(TEntrada(AEntrada).Bytes()));
    auto arquivo = Interno::LerArquivoReg("\xFF\xFE" + Interno::BytesDeUnidades(MontarTexto(AEntrada)));
    if (!arquivo) return;
    TConteudo esperado = LerTudo(*arquivo);
    for (int passos = 0; passos < 4 && (passos == 0 || !AEntrada.Acabou()); ++passos) {
        static constexpr std::u16string_view CChaves[] = {u"\\a", u"\\A\\b", u"", u"\\a\\b\\c", u"\\n"};
        const std::u16string chave = CRaiz + std::u16string(CChaves[AEntrada.Byte() % std::size(CChaves)]);
        std::u16string nome = AEntrada.Byte() % 2 ? u"N" : AEntrada.Texto(4);
        if (!Interno::EhNomeDeValorValido(nome)) nome.clear();
        const bool existia = esperado.contains(MinusculaDe(chave));
        const auto acima = [&] {
            for (std::size_t barra = chave.find(u'\\'); barra < chave.size(); barra = chave.find(u'\\', barra + 1))
                esperado.try_emplace(MinusculaDe(chave.substr(0, barra)));
            esperado.try_emplace(MinusculaDe(chave));
        };
        switch (AEntrada.Byte() % 4) {
            case 0: {
                TDadoRegistro dado{AEntrada.Byte() % 5u, {}};
                for (int n = AEntrada.Byte() % 40; n > 0; --n) dado.Bytes += static_cast<char>(AEntrada.Byte());
                arquivo->Topo.Criar(chave).Valores[nome] = dado;
                acima();
                esperado[MinusculaDe(chave)][MinusculaDe(nome)] = dado;
                break;
            }
            case 1:
                Exigir((arquivo->Topo.Buscar(chave) != nullptr) == existia);
                if (existia)
                    Exigir(arquivo->Topo.Buscar(chave)->Valores.erase(nome) ==
                           esperado[MinusculaDe(chave)].erase(MinusculaDe(nome)));
                break;
            case 2:
                arquivo->Topo.Criar(chave);
                acima();
                break;
            default:
                Exigir(arquivo->Topo.Excluir(chave) == existia);
                std::erase_if(esperado, [&](const auto& AItem) {
                    return AItem.first == MinusculaDe(chave) || AItem.first.starts_with(MinusculaDe(chave) + u"\\");
                });
        }
        Exigir(LerTudo(*arquivo) == esperado);
        // The file that is written says the same and no more.
        const std::string bytes = Interno::EscreverArquivoReg(arquivo->Topo);
        const auto relido = Interno::LerArquivoReg(bytes);
        Exigir(relido && !relido->PerdeuLinhas && LerTudo(*relido) == esperado &&
               Interno::EscreverArquivoReg(relido->Topo) == bytes);
    }
}
