// What stands between widgets: fixed spaces, shares of the height, space that is left, and dividers.
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const red = [198, 40, 40], blue = [21, 101, 192], green = [46, 125, 50], yellow = [249, 168, 37];
const purple = [106, 27, 154], teal = [0, 131, 143], white = [255, 255, 255];

standsAsMeasured(widgetScreen('spaces'), ({height}) => ({
    texts: [],
    colours: [
        [100, 25, white], [100, 33, red], [100, 67, red], [100, 73, white],
        [100, 30 + 40 + 0.1 * height + 20 + 20, blue], [197, 170, blue], [203, 170, white], [100, 176, white],
        [100, 164, white], [100, height - 84, white], [100, height - 77, green], [100, height - 43, green],
        [3, height - 20, yellow], [37, height - 20, yellow], [45, height - 20, white], [65, height - 20, white],
        [73, height - 20, purple], [107, height - 20, purple], [115, height - 20, white], [255, height - 20, white],
        [263, height - 20, teal], [297, height - 20, teal], [303, height - 20, white],
    ],
}));
