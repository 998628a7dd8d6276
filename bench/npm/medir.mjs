// Prints for each measure { nome, vezes, rodar } its name and the median nanoseconds of the processor for one of the
// "vezes" that rodar() does; the rounds run in turns.
export function medir(medidas, rodadas = 15) {
  const tempos = medidas.map(() => []);
  let feito = 0;
  for (let i = 0; i < rodadas; ++i)
    medidas.forEach(({ vezes, rodar }, medida) => {
      const inicio = process.cpuUsage(); // a busy machine does not show
      feito += rodar();
      const { user, system } = process.cpuUsage(inicio);
      if (i >= 4) tempos[medida].push(((user + system) * 1000) / vezes); // the first rounds warm the compiler up
    });
  medidas.forEach(({ nome }, medida) =>
    console.log(nome, tempos[medida].sort((a, b) => a - b)[tempos[medida].length >> 1].toFixed(1)),
  );
  if (!(feito > 0)) throw new Error("nothing was done");
}
