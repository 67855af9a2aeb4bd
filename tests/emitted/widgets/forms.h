// What tests of forms share: a pointer that is away until it is put somewhere.
#pragma once

#include <algorithm>
#include <any>
#include <functional>
#include <initializer_list>
#include <string>

#include "emitted/widgets/surroundings.h"

class FormTest : public Surroundings {
protected:
    FormTest() { pointAt(-500, -500); }

    static void pointAt(double x, double y) {
        browser().window["mouseX"] = x;
        browser().window["mouseY"] = y;
        browser().window["mouseClicked"] = 0;
    }

    /// Draws the block of that name while the pointer clicks there.
    static Calls clickAt(double x, double y, const std::string& block) {
        pointAt(x, y);
        browser().window["mouseClicked"] = 1;
        return drawnBlock(block);
    }

    /// Makes the program's function of that name count its calls.
    int& countCallsOf(const std::string& name) {
        count = 0;
        global_vars[name] = std::any(std::function<std::any()>([this] {
            count++;
            return std::any();
        }));
        return count;
    }

    /// The calls of a block that stands that far from where these draw.
    static Calls moved(const Calls& calls, float x, float y);

    static bool holds(const Calls& calls, const std::string& call) {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }

    static Calls join(std::initializer_list<Calls> parts) {
        Calls all;
        for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
        return all;
    }

    int count = 0;
};

/// The call of the one text primitive, with what its defaults say.
inline std::string text(const std::string& x, const std::string& y, const std::string& content,
                        const std::string& colour, const std::string& size,
                        const std::string& align) {
    return "drawText(" + x + ", " + y + ", \"" + content + "\", \"" + colour + "\", " + size +
           ", \"" + align + "\", \"400\", 0, \"\", 1, 0)";
}

inline const Calls kPointer = {"return window.mouseX;", "return window.mouseY;"};
inline const std::string kHand = "document.body.style.cursor = 'pointer'";
