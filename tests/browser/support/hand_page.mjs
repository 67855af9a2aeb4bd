// The page written by hand, built by the exact command and served by the compiler's own server.
import assert from 'node:assert/strict';
import {mkdirSync} from 'node:fs';
import {createServer} from 'node:net';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {until} from './browser.mjs';
import {makeWorkplace, start} from './tool.mjs';

const source = join(dirname(fileURLToPath(import.meta.url)), '..', 'hand_page.cpp');

export function freePort() {
    return new Promise(resolve => {
        const probe = createServer().listen(0, () => {
            const {port} = probe.address();
            probe.close(() => resolve(port));
        });
    });
}

/** `address`, and `stop()`, which ends the server and removes what it stood on. */
export async function serveHandPage() {
    const workplace = makeWorkplace();
    mkdirSync(join(workplace.work, 'வெளியீடு'));
    mkdirSync(join(workplace.work, 'assets'));
    workplace.write('assets/உரை.txt', 'asset');
    workplace.write('படம்.png', 'not looked at');
    workplace.write('icon.svg', '<svg xmlns="http://www.w3.org/2000/svg"/>');
    const port = await freePort();
    const server = start(process.env.POZHIL_HAND_PAGE_SERVER,
        [process.env.POZHIL_EXECUTABLE_DIR, join(workplace.root, 'tmp'), source, String(port)], workplace);
    await until(() => server.output.includes('ready') || server.ended, 'the build', 120);
    assert.equal(server.ended, null, server.output);
    return {
        address: `http://localhost:${port}/`,
        async stop() {
            server.stop('SIGKILL');
            await server.finished;
            workplace.remove();
        },
    };
}

/** The page and the files of its program, by their paths. */
export async function readProgram(address) {
    const program = {};
    for (const path of ['/', '/index.js', '/index.wasm', '/index.data']) {
        const answer = await fetch(new URL(path, address));
        assert.equal(answer.status, 200, path);
        program[path] = Buffer.from(await answer.arrayBuffer());
    }
    return program;
}
