// The time that the scripts of a frame take, beside that of the same page drawn by hand. The limit is
// wide, since what else the machine does is measured too; scripts/bench.sh frames shows the figures.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {build} from '../../bench/web/build.mjs';
import {measureFrames} from '../../bench/web/frames.mjs';

const limit = 4;  // times the frame by hand

test('a frame of 50 widgets takes a few times what one by hand takes', async () => {
    const built = await build(50);
    try {
        const {ours, byHand} = await measureFrames(built, 90, {isDrawn: false});
        assert.ok(ours <= limit * byHand, `${ours} ms, by hand ${byHand} ms`);
    } finally {
        built.remove();
    }
});
