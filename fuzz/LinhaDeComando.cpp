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

void Fuzz::Provar(TEntrada AEntrada) {
    const std::u16string texto = TEntrada(AEntrada).Resto();
    std::size_t tamanho = 0;
    for (const auto& parte : SepararLinhaDeComando(texto)) tamanho += parte.size();
    Exigir(tamanho <= texto.size());

    std::vector<std::u16string> argumentos;
    std::u16string linha;
    while (!AEntrada.Acabou()) {
        argumentos.push_back(AEntrada.Texto(40));
        linha += (linha.empty() ? u"" : u" ") + Citar(argumentos.back());
    }
    Exigir(SepararArgumentos(linha) == argumentos);
    Exigir(SepararLinhaDeComando(u"x.exe " + linha).size() == argumentos.size() + 1);
}
