// Has marks judged: judge.mjs PROGRAM [--share NUMBER] [--only NAME] [--sample FILE]. PROGRAM is
// mark_jobs; NAME is that of a suite or a symbology. FILE gets a sample of what the generator drew,
// for JudgedMarksTest.cpp. With --control every mark has a wrong module and the picture of another
// one, and the judges have to notice each. Exit code 1: a difference that differences.mjs does not explain.
import { writeFileSync } from 'node:fs';
import { availableParallelism } from 'node:os';
import { parseArgs } from 'node:util';
import { isMainThread, parentPort, Worker, workerData } from 'node:worker_threads';
import { drawnBy } from './bwip.mjs';
import { gs1 } from './gs1.mjs';
import { linear } from './linear.mjs';
import { mark } from './marks.mjs';
import { matrix } from './matrix.mjs';
import { prepare } from './readers.mjs';

const FAMILIES = [linear, matrix, gs1];
const DIFFERENCES = FAMILIES.flatMap(({ differences }, family) => differences.map((row) => ({ ...row, family })));
const BYTES = 1;  // the input of what is sampled
const BATCH = 500;
const EVERY_SPOILT = 9;
const SAMPLED_OF_A_KIND = 15;
const SAMPLED_LENGTH = 24;
const SHOWN_OF_A_KIND = 3;

function explain(judge, one, difference) {
  const text = one.text.toString('latin1');
  return DIFFERENCES.findIndex((row) =>
    row.family === one.family && row.judge === judge && row.when({ ...one, text, ...difference }));
}

class Tally {
  constructor() {
    this.counts = {};  // by name of the case, then by judge: { agreed, explained }
    this.met = DIFFERENCES.map(() => 0);
    this.differences = [];
  }

  of(name, judge) {
    const row = (this.counts[name] ??= {});
    return (row[judge] ??= { agreed: 0, explained: 0 });
  }

  add(judge, one, difference) {
    if (difference === undefined) return;
    const counts = this.of(one.name, judge);
    if (difference === null) {
      ++counts.agreed;
      return;
    }
    const reason = explain(judge, one, difference);
    if (reason >= 0) {
      ++this.met[reason];
      ++counts.explained;
    } else {
      const { suite, name, job, text, answer } = one;
      this.differences.push({ judge, suite, name, job, text: text.toString('latin1'), message: answer.message, ...difference });
    }
  }

  join(other) {
    for (const [name, row] of Object.entries(other.counts)) {
      for (const [judge, { agreed, explained }] of Object.entries(row)) {
        this.of(name, judge).agreed += agreed;
        this.of(name, judge).explained += explained;
      }
    }
    other.met.forEach((count, index) => (this.met[index] += count));
    this.differences.push(...other.differences);
  }
}

// Of each mark the module in the middle in the other colour, and the picture of the mark before.
function spoil(answers) {
  const flip = (module) => String(Number(module) ^ 1);
  let before = {};
  return answers.map((answer) => {
    if (answer.status !== 0) return answer;
    const middle = answer.modules.length >> 1;
    const modules = answer.modules.slice(0, middle) + flip(answer.modules[middle]) + answer.modules.slice(middle + 1);
    const spoilt = { ...answer, modules, picture: answer.picture && before.picture, isSameText: before.reading?.equals(answer.reading) };
    if (answer.picture !== undefined) before = answer;
    return spoilt;
  });
}

// Spoilt marks that a judge agrees with. Sizes are not spoilt, and one text may follow its like.
function addUnnoticed(judge, one, difference, tally) {
  const { answer } = one;
  if (answer.status !== 0 || difference === undefined || judge.endsWith('size')) return;
  if (judge.startsWith('z') && answer.isSameText) return;
  if (difference !== null) tally.of(one.name, judge).agreed += 1;
  else tally.differences.push({ judge, ...one, text: one.text.toString('latin1'), ours: 'spoilt', theirs: 'not noticed' });
}

async function judgeAll(cases, { program, control }) {
  await prepare();
  const tally = new Tally();
  for (let at = 0; at < cases.length; at += BATCH) {
    const batch = cases.slice(at, at + BATCH);
    const marked = mark(program, batch);
    const answers = control ? spoil(marked) : marked;
    for (let i = 0; i < batch.length; ++i) {
      const one = { ...batch[i], answer: answers[i] };
      const add = (judge, difference) =>
        (control ? addUnnoticed(judge, one, difference, tally) : tally.add(judge, one, difference));
      await FAMILIES[one.family].judge(one, add);
    }
  }
  return tally;
}

function casesOf({ share, only, control }) {
  const every = control ? EVERY_SPOILT : 1;
  const all = FAMILIES.flatMap(({ cases }, family) => cases(share).map((one) => ({ ...one, family })))
    .filter((_, index) => index % every === 0);
  return only === undefined ? all : all.filter((one) => one.suite === only || one.name.includes(only));
}

function inWorkers(options) {
  const workers = availableParallelism();
  const results = Array.from({ length: workers }, (_, index) => new Promise((resolve, reject) => {
    const worker = new Worker(new URL(import.meta.url), { workerData: { ...options, index, workers } });
    worker.once('message', resolve).once('error', reject);
  }));
  return Promise.all(results);
}

// A table of a family: in pairs of columns what a judge agreed with and what has a reason.
function printFamily({ title, judges, names }, counts) {
  const cellsOf = (row) => row.map((one) => (one ? `${one.agreed} | ${one.explained}` : '- | -')).join(' | ');
  const rows = Object.entries(counts).filter(([name]) => names.has(name));
  if (rows.length === 0) return;
  console.log(`| ${title} | ${judges.map((judge) => `${judge} | explained`).join(' | ')} |`);
  console.log(`|---|${judges.map(() => '---:|---:|').join('')}`);
  const sums = judges.map(() => ({ agreed: 0, explained: 0 }));
  for (const [name, row] of rows) {
    const cells = judges.map((judge) => row[judge]);
    cells.forEach((one, index) => {
      sums[index].agreed += one?.agreed ?? 0;
      sums[index].explained += one?.explained ?? 0;
    });
    console.log(`| ${name} | ${cellsOf(cells)} |`);
  }
  console.log(`| together | ${cellsOf(sums)} |`);
}

function print(tally, cases) {
  FAMILIES.forEach((family, index) => {
    const names = new Set(cases.filter((one) => one.family === index).map((one) => one.name));
    printFamily({ ...family, names }, tally.counts);
  });
  DIFFERENCES.forEach((row, index) => console.log(`${tally.met[index]} x ${row.judge}, ${row.what}: ${row.why}`));
}

// The first few of each judge and symbology.
function printDifferences(differences) {
  const shown = {};
  for (const { judge, suite, name, job, text, message, ours, theirs } of differences) {
    const kind = `${judge}, ${name}`;
    shown[kind] = (shown[kind] ?? 0) + 1;
    if (shown[kind] > SHOWN_OF_A_KIND) continue;
    console.log(`DIFFERS ${kind}, ${suite}: ${JSON.stringify(text)} ${JSON.stringify(job)}`);
    console.log(`  ours   ${ours}${message && message !== ours ? ` (${message})` : ''}\n  theirs ${theirs}`);
  }
  for (const [kind, count] of Object.entries(shown)) console.log(`${count} of ${kind}`);
}

// Some short texts of each symbology and suite, as the generator drew or refused them.
function writeSample(file, cases, program) {
  const kinds = {};
  for (const one of cases.filter(({ job, text }) => job.input === BYTES && text.length <= SAMPLED_LENGTH)) {
    (kinds[`${one.suite} ${one.job.symbology}`] ??= []).push(one);
  }
  const sampled = Object.values(kinds).flatMap((kind) => {
    const step = kind.length / SAMPLED_OF_A_KIND;
    return kind.filter((_, index) => step <= 1 || Math.floor(index / step) !== Math.floor((index - 1) / step));
  });
  const answers = mark(program, sampled);
  const lines = sampled.flatMap(({ job, text }, index) => {
    const drawn = drawnBy({ job, text, answer: answers[index] });
    return drawn ? [[job.symbology, job.flags ?? 0, job.check ?? 0, job.addon_gap ?? 0, text.toString('hex') || '-', drawn].join(' ')] : [];
  });
  const head = '# Drawn by bwip-js 4.11.4 (scripts/judge --sample): symbology, flags, check, addon_gap, text, elements or refusal';
  writeFileSync(file, [head, ...new Set(lines)].join('\n') + '\n');
  console.log(`${file}: ${lines.length} marks`);
}

async function main() {
  const { values, positionals } = parseArgs({
    allowPositionals: true, options: { share: { type: 'string', default: '1' }, only: { type: 'string' }, sample: { type: 'string' },
               control: { type: 'boolean', default: false } },
  });
  const options = { program: positionals[0], share: Number(values.share), only: values.only, control: values.control };
  if (values.sample) {
    writeSample(values.sample, casesOf(options).filter((one) => FAMILIES[one.family] === linear), options.program);
    return;
  }
  const began = Date.now();
  const tally = new Tally();
  for (const part of await inWorkers(options)) tally.join(part);
  const cases = casesOf(options);
  print(tally, cases);
  const isWhole = !values.control && values.only === undefined && options.share >= 1;
  const unmet = isWhole ? DIFFERENCES.filter((_, index) => tally.met[index] === 0) : [];
  for (const row of unmet) console.log(`nothing met: ${row.judge}, ${row.what}`);
  printDifferences(tally.differences);
  const seconds = Math.round((Date.now() - began) / 1000);
  const failures = tally.differences.length + unmet.length;
  console.log(`judge: ${failures === 0 ? (values.control ? 'every spoilt mark was noticed' : 'agreed') : 'FAILED'}, ${cases.length} texts, ${tally.differences.length} differences not explained, ${unmet.length} reasons not met, ${seconds} s`);
  process.exitCode = failures === 0 ? 0 : 1;
}

if (isMainThread) {
  await main();
} else {
  const { index, workers } = workerData;
  const cases = casesOf(workerData).filter((_, at) => at % workers === index);
  const { counts, met, differences } = await judgeAll(cases, workerData);
  parentPort.postMessage({ counts, met, differences });
}
