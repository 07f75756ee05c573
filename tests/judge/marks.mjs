// Marks of the library, by the program mark_jobs (MarkJobs.cpp has the form of its lines).
import { spawnSync } from 'node:child_process';

const MOST_BYTES = 1 << 30;

function lineOf({ job, text }) {
  const fields = Object.entries(job).map(([name, value]) => `${name}=${value}`);
  return [...fields, `text=${text.toString('hex')}`].join('\t');
}

function answerOf(line) {
  const fields = {};
  for (const part of line.split('\t')) {
    const equals = part.indexOf('=');
    fields[part.slice(0, equals)] = part.slice(equals + 1);
  }
  for (const name of ['status', 'warnings', 'position', 'extent', 'rows', 'columns', 'codewords', 'capacity']) {
    fields[name] = Number(fields[name]);
  }
  for (const name of ['values', 'reading', 'hri']) {
    if (name in fields) fields[name] = Buffer.from(fields[name], 'hex');
  }
  return fields;
}

// The answers to cases of { job, text }, in their order.
export function mark(program, cases) {
  const input = cases.map(lineOf).join('\n') + '\n';
  const run = spawnSync(program, { input, maxBuffer: MOST_BYTES });
  if (run.status !== 0) throw new Error(`${program}: ${run.error ?? run.stderr}`);
  const answers = run.stdout.toString('latin1').split('\n').slice(0, -1).map(answerOf);
  if (answers.length !== cases.length) throw new Error(`${answers.length} answers to ${cases.length} jobs`);
  return answers;
}

// A picture as mark_jobs writes it: grey, row by row. Of many equal rows no more than mostEqual.
export function pictureOf(text, mostEqual = Infinity) {
  const [width, ...rows] = text.split(';');
  const runsOf = (row) => {
    const [count, runs] = row.split('*');
    return { count: Math.min(Number(count), mostEqual), runs: runs.split(',').map(Number) };
  };
  const parts = rows.map(runsOf);
  const height = parts.reduce((sum, part) => sum + part.count, 0);
  const grey = new Uint8ClampedArray(Number(width) * height);
  let at = 0;
  for (const { count, runs } of parts) {
    for (let i = 0; i < count; ++i) {
      runs.forEach((run, index) => grey.fill(index % 2 === 1 ? 0 : 255, at, (at += run)));
    }
  }
  return { width: Number(width), height, grey };
}
