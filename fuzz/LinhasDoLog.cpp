// Any bytes as a log that stands there, in each encoding: lines go in and come back, one by one or all at once.
#include "oryutils/files/interno/LinhasDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"

#include "Comum.hpp"

using namespace OryUtils;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    Fuzz::TEntrada entrada(ABytes, ATamanho);
    const auto codificacao = static_cast<TCodificacaoLog>(entrada.Byte() % 3);
    const std::size_t lugar = entrada.Byte();
    const auto linhas = SepararLinhas(entrada.Bytes(), codificacao);
    TLinhasDoLog inteiro, aospoucos;
    inteiro.SetCodificacao(codificacao);
    aospoucos.SetCodificacao(codificacao);
    inteiro.Substituir(linhas);
    for (const auto& linha : linhas) {
        Fuzz::Exigir(linha.find_first_of(u"\r\n") == std::u16string::npos);
        aospoucos.Adicionar(linha);
        static_cast<void>(aospoucos.BuscarTextoPronto());
    }
    Fuzz::Exigir(inteiro.GetTexto() == aospoucos.GetTexto());
    Fuzz::Exigir(inteiro.BuscarTextoPronto().Bytes == aospoucos.BuscarTextoPronto().Bytes);
    if (lugar <= linhas.size()) {
        inteiro.Inserir(lugar, u"\xD800 ç");
        aospoucos.Inserir(lugar, u"\xD800 ç");
        Fuzz::Exigir(inteiro.BuscarTextoPronto().Bytes == aospoucos.BuscarTextoPronto().Bytes);
    }
    return 0;
}
