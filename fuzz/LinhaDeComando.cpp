// Any text as a command line; any arguments quoted by the rules of Windows come back as they were.
#include "oryutils/readers/LinhaDeComando.hpp"

#include "Comum.hpp"

using namespace OryUtils::Interno;

namespace {

std::u16string Citar(const std::u16string& AArgumento) {
    std::u16string citado = u"\"";
    std::size_t barras = 0;
    for (const char16_t c : AArgumento) {
        if (c == u'"') citado.append(barras + 1, u'\\');
        barras = c == u'\\' ? barras + 1 : 0;
        citado += c;
    }
    return citado.append(barras, u'\\') + u'"';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    const std::u16string texto = Fuzz::TEntrada(ABytes, ATamanho).Resto();
    std::size_t tamanho = 0;
    for (const auto& parte : SepararLinhaDeComando(texto)) tamanho += parte.size();
    Fuzz::Exigir(tamanho <= texto.size());

    Fuzz::TEntrada entrada(ABytes, ATamanho);
    std::vector<std::u16string> argumentos;
    std::u16string linha;
    while (!entrada.Acabou()) {
        argumentos.push_back(entrada.Texto(40));
        linha += (linha.empty() ? u"" : u" ") + Citar(argumentos.back());
    }
    Fuzz::Exigir(SepararArgumentos(linha) == argumentos);
    Fuzz::Exigir(SepararLinhaDeComando(u"x.exe " + linha).size() == argumentos.size() + 1);
    return 0;
}
