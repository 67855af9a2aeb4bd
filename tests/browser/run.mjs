// node run.mjs FILE: runs the tests of a file. A graphics driver can fail under load, and all that stands
// on a page is white then, whatever the program does: a file that fails and says so runs once more.
import {spawnSync} from 'node:child_process';
import {lossOfDrawing} from './support/loss.mjs';

function run(file) {
    const {status, stdout} = spawnSync(process.execPath, [file],
        {stdio: ['ignore', 'pipe', 'inherit'], encoding: 'utf8', maxBuffer: 64 << 20});
    process.stdout.write(stdout);
    return {status, isLost: stdout.includes(lossOfDrawing)};
}

let {status, isLost} = run(process.argv[2]);
if (status !== 0 && isLost) {
    console.log(`${lossOfDrawing}: once more`);
    ({status} = run(process.argv[2]));
}
process.exitCode = status ?? 1;
