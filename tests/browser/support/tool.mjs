// The compiler on its web road, in a working directory of its own, with the real em++.
import {execFileSync, spawn} from 'node:child_process';
import {chmodSync, mkdirSync, mkdtempSync, readFileSync, renameSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {delimiter, join} from 'node:path';

const executableDirectory = required('POZHIL_EXECUTABLE_DIR');
// By its own path: a stand-in found first would add its start to that of em++.
const python = execFileSync('python3', ['-c', 'import sys; print(sys.executable)'], {encoding: 'utf8'}).trim();

export const address = 'http://localhost:6931/';

function required(name) {
    const value = process.env[name];
    if (!value) throw new Error(`${name} is not set: run by ctest`);
    return value;
}

/**
 * A directory with a `bin` that hides the browser opener and notes when em++ runs. That is noted by the
 * interpreter that em++ starts: the compiler must find em++ itself, for which headers are prepared.
 */
export function makeWorkplace() {
    const root = mkdtempSync(join(tmpdir(), 'pozhil-browser-'));
    for (const name of ['bin', 'work', 'tmp']) mkdirSync(join(root, name));
    const script = (name, text) => {
        writeFileSync(join(root, 'bin', name), `#!/bin/bash\n${text}\n`);
        chmodSync(join(root, 'bin', name), 0o755);
    };
    script('xdg-open', 'exit 0');
    script('python', `tool=$1; shift\n[ ! -e '${root}/broken' ] || set -- "$@" missing.o\n` +
        `if [ -e '${root}/drawn_by_hand.cpp' ]; then\nfor word; do\n` +
        `[[ $word != *.cpp ]] || sed -i '/if (!bgSet) nvgFillColor/{n;s|$|\\n#include "${root}/drawn_by_hand.cpp"|}' "$word"\n` +
        `done\nfi\n` +
        `echo "start $EPOCHREALTIME" >>'${root}/times'\nprintf '%s\\0' "$@" >'${root}/words'\n` +
        `printf '%s' "$EMCC_CFLAGS" >'${root}/flags'\n` +
        `EMSDK_PYTHON='${python}' '${python}' "$tool" "$@"\nstatus=$?\ntimes >'${root}/spent'\n` +
        `echo "end $EPOCHREALTIME" >>'${root}/times'\nexit $status`);
    return {
        root,
        work: join(root, 'work'),
        environment: {
            ...process.env,
            TMPDIR: join(root, 'tmp'),
            PATH: join(root, 'bin') + delimiter + process.env.PATH,
            EMSDK_PYTHON: join(root, 'bin', 'python'),
        },
        /** Start and end of each run of em++, in milliseconds since the epoch. */
        compilerTimes() {
            return readFileSync(join(root, 'times'), 'utf8').trim().split('\n')
                .map(line => Number(line.split(' ')[1]) * 1000);
        },
        /** The words of the last command for em++, and the seconds of processor time that it took. */
        lastCompilation() {
            const [user, system] = readFileSync(join(root, 'spent'), 'utf8').trim().split('\n')[1].split(' ')
                .map(time => /(\d+)m([\d.]+)s/.exec(time)).map(([, minutes, seconds]) => minutes * 60 + Number(seconds));
            return {
                words: readFileSync(join(root, 'words'), 'utf8').split('\0').slice(0, -1),
                seconds: user + system,
            };
        },
        /** The flags that the last run of em++ found in its environment. */
        lastFlags() {
            return readFileSync(join(root, 'flags'), 'utf8');
        },
        /** From now on em++ misses an object, or no longer does. */
        breakCompiler(broken) {
            if (broken) writeFileSync(join(root, 'broken'), '');
            else rmSync(join(root, 'broken'));
        },
        /** Written beside, then renamed: the watch loop never reads a source half written. */
        write(name, text) {
            writeFileSync(join(root, 'new'), text);
            renameSync(join(root, 'new'), join(root, 'work', name));
        },
        /** From now on each page draws what these C++ statements draw, behind its background. */
        drawByHand(statements) {
            writeFileSync(join(root, 'drawn_by_hand.cpp'), statements);
        },
        remove() {
            rmSync(root, {recursive: true, force: true});
        },
    };
}

/** A process that goes on; `output` is what it has printed so far. */
export function start(command, commandArguments, workplace) {
    const child = spawn(command, commandArguments,
        {cwd: workplace.work, env: workplace.environment, stdio: ['ignore', 'pipe', 'pipe']});
    const running = {output: '', ended: null, stop: signal => child.kill(signal)};
    for (const stream of [child.stdout, child.stderr]) {
        stream.setEncoding('utf8');
        stream.on('data', text => { running.output += text; });
    }
    running.finished = new Promise(resolve => {
        child.on('close', (status, signal) => {
            running.ended = {status, signal};
            resolve(running.ended);
        });
    });
    return running;
}

export function startCompiler(workplace, ...compilerArguments) {
    return start(join(executableDirectory, 'பொழில்'), compilerArguments, workplace);
}

export async function version() {
    return (await fetch(`${address}version`)).text();
}

/** What each file of tests does at its end; whatever wasn't begun may be missing. */
export async function tidyUp(browser, compiler, workplace) {
    await browser?.close();
    compiler?.stop('SIGKILL');
    await compiler?.finished;
    workplace?.remove();
}
