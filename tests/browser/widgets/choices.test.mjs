// Widgets to choose with, as they stand untouched: check boxes, radios of a group, switches at both
// ends, sliders at a place between and at their end, a closed dropdown.
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], green = [46, 125, 50], white = [255, 255, 255], red = [198, 40, 40];
const grey = [224, 224, 224], ink = [51, 51, 51];

// The places of what stands below the check boxes: their tops by the measures, with 10 pixels between.
const radios = [202, 242, 282], switches = [322, 360], sliders = [398, 436], dropdown = 474;
const radioMiddle = 10;

standsAsMeasured(widgetScreen('choices'), ({width, scale}) => {
    const [first, second] = sliders.map(top => top + 10);
    const half = width / 2;
    return {
        texts: [
            {text: 'வேண்டும்', x: 36, y: 36.5, size: 16 * scale},
            {text: 'வேண்டாம்', x: 36, y: 70.5, size: 16 * scale},
            ...['தமிழ்', 'தெலுங்கு', 'முதல்மொழி'].map((text, i) =>
                ({text, x: 30, y: radios[i] + radioMiddle, size: 18})),
            {text: 'தேர்ந்தெடு...', x: 15, y: dropdown + 25 - 8, size: 16, colour: ink},
        ],
        colours: [
            [3, 42, blue], [3, 76, white], [8, 100, green], [58, 110, green], [62, 110, white],
            [12, 168, red], [12, 180, white],
            // A ring, and a dot of the chosen two.
            ...[[blue, blue], [red, white], [green, green]].flatMap(([ring, dot], i) => [
                [10, radios[i], ring], [10, radios[i] + 10, dot], [7, radios[i] + 10, dot], [10, radios[i] + 3, white],
            ]),
            // The thumb at the left leaves the right of the track, and the other way round.
            [40, switches[0] + 14, grey], [14, switches[0] + 14, white],
            [10, switches[1] + 14, green], [34, switches[1] + 14, white],
            // Filled as far as the thumb's middle, 80 of 200 pixels.
            [50, first, blue], [80, first, white], [110, first, grey], [190, first, grey], [110, first + 3, white],
            [half - 20, second, blue], [half, second, white], [half + 20, second, white],
            [100, dropdown - 3, white], [100, dropdown + 25, white],
        ],
    };
});
