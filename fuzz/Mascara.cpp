// Any mask, any value and any gestures: the text stays one of the mask, and the value goes and comes back.
#include "oryutils/fields/Mascara.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include "Comum.hpp"

using namespace OryUtils;

namespace {

bool EhTextoDaMascara(const TMascara& AMascara, std::u16string_view ATexto) {
    const TFalhaMascara falha = AMascara.Examinar(ATexto).Falha;
    return falha == fmNenhuma || falha == fmIncompleto;
}

void Percorrer(const TMascara& AMascara, Fuzz::TEntrada& AEntrada) {
    const std::u16string valor = AEntrada.Texto(64);
    Fuzz::Exigir(AMascara.Exibir(valor).size() >= valor.size());
    const std::u16string texto = AMascara.Sair(AMascara.ParaEdicao(valor));
    Fuzz::Exigir(EhTextoDaMascara(AMascara, texto));
    Fuzz::Exigir(AMascara.ParaEdicao(AMascara.ParaValor(texto)) == texto);
    static_cast<void>(AMascara.Aceita(valor));

    TEdicaoMascara edicao{valor, AEntrada.Byte(), AEntrada.Byte()};
    while (!AEntrada.Acabou()) {
        const std::uint8_t gesto = AEntrada.Byte();
        switch (gesto % 4) {
            case 0:
                edicao = AMascara.Teclar(edicao, static_cast<TTeclaMascara>(gesto / 4 % 6));
                break;
            case 1:
                edicao = AMascara.Colar(edicao, AEntrada.Texto(32));
                break;
            case 2:
                edicao.Ancora = AEntrada.Byte();
                break;
            default:
                edicao = AMascara.Digitar(edicao, AEntrada.Valor<char16_t>());
        }
        const TEdicaoMascara ajustada = AMascara.Ajustar(edicao);
        Fuzz::Exigir(EhTextoDaMascara(AMascara, ajustada.Texto) && ajustada.Cursor <= ajustada.Texto.size());
        edicao.Recusada = false;
        if (gesto % 4 != 2) Fuzz::Exigir(edicao == ajustada);
    }
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    const std::u16string padrao = AEntrada.Texto(40);
    try {
        Percorrer(TMascara(padrao, BuscarFormatosBrasileiros()), AEntrada);
    } catch (const EConvertError&) {
        // A broken mask: its only answer.
    }
}
