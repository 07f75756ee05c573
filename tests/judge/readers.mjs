// The readers zxing-wasm and zbar-wasm, on pictures of the strokes.
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join } from 'node:path';
import { getDefaultScanner, scanGrayBuffer } from '@undecaf/zbar-wasm';
import { prepareZXingModule, readBarcodes } from 'zxing-wasm/reader';
import { ROW } from './symbologies.mjs';

const require = createRequire(import.meta.url);
const dist = dirname(dirname(dirname(require.resolve('zxing-wasm/reader'))));
const wasmBinary = readFileSync(join(dist, 'reader', 'zxing_reader.wasm'));

const UPRIGHT = { tryRotate: false, tryInvert: false, tryDownscale: false, textMode: 'Plain' };

export async function prepare() {
  await prepareZXingModule({ overrides: { wasmBinary }, fireImmediately: true });
  await getDefaultScanner();
}

function colours({ width, height, grey }) {
  const data = new Uint8ClampedArray(4 * width * height);
  const pixels = new Uint32Array(data.buffer);
  for (let i = 0; i < grey.length; ++i) pixels[i] = grey[i] === 0 ? 0xff000000 : 0xffffffff;
  return { data, width, height };
}

// The symbols of the formats that zxing finds.
export async function zxing(picture, formats, options = {}) {
  const found = await readBarcodes(colours(picture), { ...UPRIGHT, formats, ...options });
  return found.map((one) => ({
    bytes: Buffer.from(one.bytes), identifier: one.symbologyIdentifier, content: one.contentType,
    format: one.format, extra: one.extra === '' ? {} : JSON.parse(one.extra), hasEci: one.hasECI,
    bytesEci: Buffer.from(one.bytesECI), mirrored: one.isMirrored,
    part: [one.sequenceIndex, one.sequenceSize, one.sequenceId],
  }));
}

export async function zbar(picture, type) {
  const found = await scanGrayBuffer(picture.grey.buffer, picture.width, picture.height);
  return found.filter((one) => one.typeName === `ZBAR_${type}`)
    .map((one) => ({ bytes: Buffer.from(Uint8Array.from(one.data)) }));
}

const said = (found) => (found.length === 0 ? 'nothing' : found.map((one) => one.bytes.toString('hex')).join(' '));

function compare(found, expected) {
  const ours = Buffer.from(expected.bytes, 'latin1').toString('hex');
  const theirs = said(found);
  return theirs === ours ? null : { ours, theirs };
}

// The text that was asked for, and the reading that the library promises.
export async function judgeByZxing({ job, text, answer }, picture) {
  const row = ROW[job.symbology];
  const characters = text.toString('latin1');
  const options = row.hasAddOn?.(characters) ? { eanAddOnSymbol: 'Require' } : {};
  const found = await zxing(picture, [row.format], options);
  const expected = row.said(characters, job);
  const promised = { bytes: row.promised(answer.reading.toString('latin1'), job, expected.bytes) };
  return compare(found, expected) ?? compare(found, promised);
}

export async function judgeByZbar({ job, text }, picture) {
  const row = ROW[job.symbology];
  return compare(await zbar(picture, row.zbar.toUpperCase()), row.saidByZbar(text.toString('latin1'), job));
}
