// picture.mjs PROGRAM: a page that shows PROGRAM.பொழில், as the site shows programs, beside PROGRAM.out.
import {readFileSync} from 'node:fs';
import {basename} from 'node:path';
import {escaped, highlighted} from './highlight.mjs';

const program = process.argv[2];
const style = new URL('assets/style.css', import.meta.url);
const code = highlighted(readFileSync(`${program}.பொழில்`, 'utf8').trimEnd(), 'பொழில்');
const output = escaped(readFileSync(`${program}.out`, 'utf8').trimEnd());

const box = (caption, text) => `<div><p>${caption}</p><pre><code>${text}</code></pre></div>`;
process.stdout.write(`<!doctype html><meta charset="utf-8"><link rel="stylesheet" href="${style}">
<style>
    body { background: #fcfbf8; display: flex; align-items: center; gap: 20px; margin: 20px; width: max-content; }
    div { background: #f4f2ec; border: 1px solid #dedbd1; border-radius: 10px; padding: 6px 20px 14px; }
    div:last-child { border-left: 4px solid #17654a; }
    p { color: #566062; font: 15px "Noto Sans Tamil"; margin: 6px 0; }
    pre { font-size: 17px; line-height: 1.75; margin: 0; padding: 0; }
    b { color: #17654a; font-size: 34px; }
</style>
${box(`${basename(program)}.பொழில்`, code)}<b>→</b>${box('வெளியீடு', output)}
`);
