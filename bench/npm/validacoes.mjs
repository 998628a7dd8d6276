// Nanoseconds of the processor per call of npm validators over the list that bench_Validacoes writes:
//   node validacoes.mjs LIST
// On the error output, how often each says what the library says: one that refuses early does not do the same work.
import { readFileSync } from "node:fs";
import { isValidCnpj, isValidCpf, isValidIE } from "@brazilian-utils/brazilian-utils";
import inscricaoEstadual from "inscricaoestadual";
import { medir } from "./medir.mjs";

const itens = readFileSync(process.argv[2], "utf8").trimEnd().split("\n").map((linha) => linha.split(";"));
const documentos = itens.filter(([tipo]) => tipo.length > 2);
const ies = itens.filter(([tipo]) => tipo.length === 2);

const validadores = [
  ["CpfCnpj_brazilian-utils", documentos, (tipo, numero) => (tipo === "CPF" ? isValidCpf(numero) : isValidCnpj(numero))],
  ["IE_brazilian-utils", ies, (uf, numero) => isValidIE(uf, numero)],
  ["IE_inscricaoestadual", ies, (uf, numero) => inscricaoEstadual(numero, uf)],
];

medir(
  validadores.map(([nome, lista, validar]) => {
    const iguais = lista.filter(([tipo, numero, veredito]) => Boolean(validar(tipo, numero)) === (veredito === "1"));
    console.error(`${nome} agrees with the library on ${((100 * iguais.length) / lista.length).toFixed(1)}%`);
    const repeticoes = Math.ceil(50000 / lista.length);
    const rodar = () => {
      let validos = 0;
      for (let i = 0; i < repeticoes; ++i) for (const [tipo, numero] of lista) validos += validar(tipo, numero) ? 1 : 0;
      return validos;
    };
    return { nome, vezes: repeticoes * lista.length, rodar };
  }),
);
