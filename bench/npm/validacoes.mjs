// Nanoseconds per call of npm validators over the list that bench_Validacoes writes:
//   node validacoes.mjs LIST
// One line each: name and the median of rounds run in turns. On the error output, how often each says what the library
// says: one that refuses early does not do the same work.
import { readFileSync } from "node:fs";
import { isValidCnpj, isValidCpf, isValidIE } from "@brazilian-utils/brazilian-utils";
import inscricaoEstadual from "inscricaoestadual";

const itens = readFileSync(process.argv[2], "utf8").trimEnd().split("\n").map((linha) => linha.split(";"));
const documentos = itens.filter(([tipo]) => tipo.length > 2);
const ies = itens.filter(([tipo]) => tipo.length === 2);

const medidas = [
  ["CpfCnpj_brazilian-utils", documentos, (tipo, numero) => (tipo === "CPF" ? isValidCpf(numero) : isValidCnpj(numero))],
  ["IE_brazilian-utils", ies, (uf, numero) => isValidIE(uf, numero)],
  ["IE_inscricaoestadual", ies, (uf, numero) => inscricaoEstadual(numero, uf)],
].map(([nome, lista, validar]) => ({ nome, lista, validar, tempos: [] }));

for (const { nome, lista, validar } of medidas) {
  const iguais = lista.filter(([tipo, numero, veredito]) => Boolean(validar(tipo, numero)) === (veredito === "1"));
  console.error(`${nome} agrees with the library on ${((100 * iguais.length) / lista.length).toFixed(1)}%`);
}

let validos = 0;
function rodada({ lista, validar }) {
  const repeticoes = Math.ceil(50000 / lista.length);
  const inicio = process.cpuUsage(); // processor time, as the other benchmark counts: a busy machine does not show
  for (let i = 0; i < repeticoes; ++i) for (const [tipo, numero] of lista) validos += validar(tipo, numero) ? 1 : 0;
  const { user, system } = process.cpuUsage(inicio);
  return ((user + system) * 1000) / (repeticoes * lista.length);
}

for (let i = 0; i < 12; ++i)
  for (const medida of medidas) {
    const tempo = rodada(medida);
    if (i >= 3) medida.tempos.push(tempo); // the first rounds warm the compiler up
  }
for (const { nome, tempos } of medidas)
  console.log(nome, tempos.sort((a, b) => a - b)[tempos.length >> 1].toFixed(1));
if (validos === 0) throw new Error("nothing was valid: the list is not what it should be");
