// A telephone in the hand: its screen, and a finger on it.
import {until} from './browser.mjs';

/** The options of a browser's context for a telephone that is held upright. */
export const telephone = ({width = 390, height = 844, ratio = 2} = {}) => ({
    viewport: {width, height}, screen: {width, height}, deviceScaleFactor: ratio, isMobile: true, hasTouch: true,
});

/** Touches the screen, and waits until the touch has become a click and a frame has taken it. */
export async function tap(page, x, y) {
    const before = await page.evaluate(() => {
        if (window.touches === undefined) {
            window.touches = 0;
            window.addEventListener('mousedown', () => { window.touches++; });
        }
        return window.touches;
    });
    await page.touchscreen.tap(x, y);
    await until(() => page.evaluate(seen => window.touches > seen && !window.mouseClicked, before),
        'a frame to take the touch');
}
