// A server that stands in for the compiler's: the same paths, with every trouble at will.
import {createServer} from 'node:http';
import {freePort} from './hand_page.mjs';

const types = {
    '/': 'text/html; charset=utf-8', '/version': 'text/plain', '/index.js': 'application/javascript',
    '/index.wasm': 'application/wasm', '/index.data': 'application/octet-stream',
};

/**
 * Serves `program` as the page's build number `built`, and tells `told` for /version. What can be set
 * at any time: both numbers; `program`; `trouble[path]`: 'missing' answers 404, 'broken' hangs up in
 * the middle, 'held' goes no further than the middle, a promise holds the answer until it is kept,
 * and 'lost' hangs up without a word. `loads` and `polls` count pages and looks at /version.
 */
export async function standIn(program) {
    const port = await freePort();
    const address = `http://localhost:${port}/`;
    const it = {address, program, told: 2, built: 2, trouble: {}, loads: 0, polls: 0};

    function textOf(path) {
        if (path === '/version') return Buffer.from(String(it.told));
        const text = it.program[path];
        if (path !== '/' || !text) return text;
        const numbered = String(text).replace(/let currentVersion = \d+;/, `let currentVersion = ${it.built};`);
        return Buffer.from(numbered);
    }

    async function answer(request, response) {
        const path = request.url;
        if (request.headers['sec-fetch-dest'] === 'document') it.loads++;
        if (path === '/version') it.polls++;
        const trouble = it.trouble[path];
        if (trouble === 'lost') return request.socket.destroy();
        await trouble;
        const text = textOf(path);
        if (trouble === 'missing' || !text) {
            return response.writeHead(404, {'Content-Length': 3, Connection: 'close'}).end('404');
        }
        response.writeHead(200,
            {'Content-Type': types[path], 'Content-Length': text.length, Connection: 'close'});
        if (trouble !== 'broken' && trouble !== 'held') return response.end(text);
        response.write(text.subarray(0, text.length / 2), () => {
            if (trouble === 'broken') request.socket.destroy();
            else it.trouble.goOn = () => response.end(text.subarray(text.length / 2));
        });
    }

    let server;
    it.goAway = () => new Promise(resolve => {
        server.close(resolve);
        server.closeAllConnections();
    });
    it.comeBack = () => new Promise(resolve => {
        server = createServer(answer).listen(port, resolve);
    });
    await it.comeBack();
    return it;
}
