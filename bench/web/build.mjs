// Builds the applications that are measured: ours by the compiler, the one by hand by the very command
// that the compiler gave em++ for ours, with its flags.
import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {mkdirSync, readFileSync, writeFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {until} from '../../tests/browser/support/browser.mjs';
import {copyFonts} from '../../tests/browser/support/fonts.mjs';
import {readProgram} from '../../tests/browser/support/hand_page.mjs';
import {address, makeWorkplace, startCompiler} from '../../tests/browser/support/tool.mjs';
import {application} from './sources.mjs';

const handDrawn = readFileSync(join(dirname(fileURLToPath(import.meta.url)), 'hand_drawn.cpp'), 'utf8');
const patience = 600;  // seconds

/**
 * Ours with `count` widgets: `program`, its page and files; `lines` of generated text; `seconds` of
 * processor time that em++ took. `byHand()` builds the other: its program.
 */
export async function build(count) {
    const workplace = makeWorkplace();
    copyFonts(workplace.work);
    workplace.write('நிரல்.பொழில்', application(count));
    const compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    try {
        await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', patience);
        assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
        const {words, seconds} = workplace.lastCompilation();
        await until(() => fetch(address).then(() => true, () => false), 'the server');
        const program = await readProgram(address);
        return {
            program,
            lines: readFileSync(words[0], 'utf8').split('\n').length - 1,
            seconds,
            byHand: () => buildByHand(workplace, words, program, count),
            remove: () => workplace.remove(),
        };
    } finally {
        compiler.stop('SIGKILL');
        await compiler.finished;
    }
}

function buildByHand(workplace, words, ours, count) {
    const source = join(workplace.root, 'hand_drawn.cpp');
    const output = join(workplace.root, 'by_hand');
    mkdirSync(output);
    writeFileSync(source, `constexpr int kWidgets = ${count};\n${handDrawn}`);
    const command = words.map((word, i) => {
        if (word === words[0]) return source;
        return words[i - 1] === '-o' ? join(output, 'index.js') : word;
    });
    execFileSync('em++', command, {
        cwd: workplace.work, stdio: ['ignore', 'inherit', 'inherit'],
        env: {...process.env, EMCC_CFLAGS: workplace.lastFlags()},
    });
    const program = {'/': ours['/']};
    for (const path of ['/index.js', '/index.wasm', '/index.data']) {
        program[path] = readFileSync(join(output, path));
    }
    return program;
}
