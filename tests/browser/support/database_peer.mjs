// A database on this machine that speaks the real protocol, and the scripts by which pages speak to it.
import {once} from 'node:events';
import {existsSync, readFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {connect, createServer} from 'node:net';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';

const packages = join(dirname(fileURLToPath(import.meta.url)), '..', 'database_peer', 'package.json');
const peerRequire = createRequire(packages);
const scripts = 'https://www.gstatic.com/firebasejs/10.0.0/';

/** A door before a server: while it is shut who calls waits outside, and who was inside is out. */
async function doorTo(portOf) {
    const inside = new Set();
    let waiting = null;
    function letIn(outer) {
        const inner = connect(portOf(), 'localhost');
        for (const socket of [outer, inner]) {
            inside.add(socket);
            socket.on('error', () => socket.destroy());
            socket.on('close', () => {
                inside.delete(socket);
                outer.destroy();
                inner.destroy();
            });
        }
        outer.pipe(inner).pipe(outer);
    }
    const door = createServer(socket => waiting ? waiting.push(socket) : letIn(socket));
    await new Promise(resolve => door.listen(0, 'localhost', resolve));
    return {
        port: door.address().port,
        shut() {
            waiting = [];
            for (const socket of inside) socket.destroy();
        },
        open() {
            waiting?.forEach(letIn);
            waiting = null;
        },
        remove() {
            door.close();
            for (const socket of [...inside, ...waiting ?? []]) socket.destroy();
        },
    };
}

/**
 * A database with nothing in it. `url` is what a program's configuration says; `value(path)` answers what
 * stands at a path, `put(path, value)` sets it, and `permit` says who may. While it has gone away nobody
 * hears from it; what it holds is there again when it has come back.
 */
export async function databasePeer() {
    const FirebaseServer = peerRequire('firebase-server');
    const door = await doorTo(() => server.getPort());
    const host = `localhost:${door.port}`;
    const server = new FirebaseServer({port: 0, host: 'localhost'}, host);  // it tells pages where to come back to
    await once(server.wss, 'listening');
    return {
        url: `http://${host}?ns=peer`,
        value: async path => (await server.getSnap()).child(path).val(),
        put(path, value) {
            server.baseRef.child(path).set(value);  // there at once; what it promises would be a word from a server
        },
        permit: rules => server.setRules({rules}),
        goAway: door.shut,
        comeBack: door.open,
        async stop() {
            door.remove();
            await server.close();
        },
    };
}

/**
 * Gives the page the database's scripts where it asks for them by their address on the net. Each waits until
 * `gate` is kept; `isThere` tells whether there is a net at all.
 */
export async function serveDatabaseScripts(page, {gate = Promise.resolve(), isThere = true} = {}) {
    await page.route(address => address.href.startsWith(scripts), async route => {
        await gate;
        const file = join(dirname(packages), 'node_modules', 'firebase-10', route.request().url().slice(scripts.length));
        if (!isThere || !existsSync(file)) return route.abort();
        return route.fulfill({contentType: 'text/javascript; charset=utf-8', body: readFileSync(file)});
    });
}
