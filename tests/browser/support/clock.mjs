// The clock that an application reads, in the hands of a test: what goes by time waits for it.

/** From now on the application's time stands still. */
export const stopClock = page => page.evaluate(() => {
    if (window.stoppedAt !== undefined) return;
    window.stoppedAt = performance.now();
    performance.now = () => window.stoppedAt;
});

/** Lets so many milliseconds go by at once. */
export const passTime = (page, milliseconds) =>
    page.evaluate(more => { window.stoppedAt += more; }, milliseconds);
