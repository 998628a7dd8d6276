// Any bytes as a log that stands there, in each encoding: lines go in and come back, one by one or all at once.
#include "oryutils/files/interno/LinhasDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"

#include "Comum.hpp"

using namespace OryUtils;

void Fuzz::Provar(TEntrada AEntrada) {
    const auto codificacao = static_cast<TCodificacaoLog>(AEntrada.Byte() % 3);
    const std::size_t lugar = AEntrada.Byte();
    const auto linhas = SepararLinhas(AEntrada.Bytes(), codificacao);
    TLinhasDoLog inteiro, aospoucos;
    inteiro.SetCodificacao(codificacao);
    aospoucos.SetCodificacao(codificacao);
    inteiro.Substituir(linhas);
    for (const auto& linha : linhas) {
        Exigir(linha.find_first_of(u"\r\n") == std::u16string::npos);
        aospoucos.Adicionar(linha);
        static_cast<void>(aospoucos.BuscarTextoPronto());
    }
    Exigir(inteiro.GetTexto() == aospoucos.GetTexto());
    Exigir(inteiro.BuscarTextoPronto().Bytes == aospoucos.BuscarTextoPronto().Bytes);
    if (lugar <= linhas.size()) {
        inteiro.Inserir(lugar, u"\xD800 ç");
        aospoucos.Inserir(lugar, u"\xD800 ç");
        Exigir(inteiro.BuscarTextoPronto().Bytes == aospoucos.BuscarTextoPronto().Bytes);
    }
}
