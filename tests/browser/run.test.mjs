// The runner of these tests: what it runs again, and what it doesn't.
import assert from 'node:assert/strict';
import {spawnSync} from 'node:child_process';
import {mkdtempSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {dirname, join} from 'node:path';
import {after, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {lossOfDrawing} from './support/loss.mjs';

const runner = join(dirname(fileURLToPath(import.meta.url)), 'run.mjs');
const folder = mkdtempSync(join(tmpdir(), 'pozhil-runner-'));
after(() => rmSync(folder, {recursive: true}));

/** Runs a file whose test fails the first `failures` times and says `words`: the status, and how often it ran. */
function run(failures, words) {
    const [file, count] = [join(folder, 'a.test.mjs'), join(folder, 'count')];
    writeFileSync(count, '');
    writeFileSync(file, `
        import {appendFileSync, readFileSync} from 'node:fs';
        import {test} from 'node:test';
        test('a', () => {
            appendFileSync(${JSON.stringify(count)}, 'x');
            console.log(${JSON.stringify(words)});
            if (readFileSync(${JSON.stringify(count)}).length <= ${failures}) throw new Error('white');
        });`);
    const {NODE_TEST_CONTEXT, ...env} = process.env;  // else the file would report to this test's own run
    const {status, stdout} = spawnSync(process.execPath, [runner, file], {encoding: 'utf8', env});
    return {status, runs: readFileSync(count).length, stdout};
}

test('runs what passes once', () => {
    const {status, runs} = run(0, lossOfDrawing);
    assert.deepEqual([status, runs], [0, 1]);
});

test('runs what failed when the drawing was lost once more, and says so', () => {
    const {status, runs, stdout} = run(1, lossOfDrawing);
    assert.deepEqual([status, runs], [0, 2]);
    assert.match(stdout, /once more/);
});

test('keeps to the second failure', () => {
    const {status, runs} = run(9, lossOfDrawing);
    assert.deepEqual([status, runs], [1, 2]);
});

test('keeps to a failure of the program', () => {
    const {status, runs} = run(1, 'all is well');
    assert.deepEqual([status, runs], [1, 1]);
});
