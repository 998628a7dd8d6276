// Any bytes as a log that stands there, in each encoding: its lines come back, whatever pieces it is read in, and alike
// when each is added as a text.
#include "oryutils/files/interno/CargaDoLog.hpp"
#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include "Comum.hpp"

#include <algorithm>
#include <utility>

using namespace OryUtils;

void Fuzz::Provar(TEntrada AEntrada) {
    const auto codificacao = static_cast<TCodificacaoLog>(AEntrada.Byte() % 3);
    const std::size_t lugar = AEntrada.Byte();
    const std::size_t tamanho = AEntrada.Byte() + std::size_t{1};
    const std::string bytes = AEntrada.Bytes();
    TSeparadorDeLinhas deUmaVez, aosPoucos;
    deUmaVez.Acrescentar(bytes);
    for (std::size_t i = 0; i < bytes.size(); i += tamanho)
        aosPoucos.Acrescentar(std::string_view(bytes).substr(i, tamanho));
    TLinhasCarregadas linhas = deUmaVez.Terminar(codificacao);
    const TLinhasCarregadas emPartes = aosPoucos.Terminar(codificacao);
    Exigir(linhas.Bytes == emPartes.Bytes && linhas.Quantidade == emPartes.Quantidade);

    TLinhasDoLog doArquivo, escritas;
    doArquivo.SetCodificacao(codificacao);
    escritas.SetCodificacao(codificacao);
    doArquivo.ColocarAntes(std::move(linhas));
    const std::u16string_view quebra = Interno::BuscarQuebraDeLinha();
    std::u16string resto = doArquivo.GetTexto();
    for (std::size_t i = 0; i < doArquivo.GetQuantidade(); ++i) {
        const std::size_t fim = std::min(resto.find(quebra), resto.size());
        Exigir(resto.substr(0, fim).find_first_of(u"\r\n") == resto.npos);
        escritas.Adicionar(resto.substr(0, fim));
        resto.erase(0, fim + quebra.size());
    }
    Exigir(resto.empty() && doArquivo.GetTexto() == escritas.GetTexto());
    if (lugar > doArquivo.GetQuantidade()) return;
    for (TLinhasDoLog* log : {&doArquivo, &escritas}) {
        log->Inserir(lugar, u"\xD800 ç");
        log->Inserir(lugar, u"a\r\nb\n");
    }
    Exigir(doArquivo.GetTexto() == escritas.GetTexto());
}
