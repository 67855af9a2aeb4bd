// What a press or a change does: a function of the program, if the value is one.
#include "emitted/widgets/placeholders/handler.h"

#include <stdexcept>

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

namespace {
std::any handlerValue;
}

#undef POZHIL_CALLBACK
#define POZHIL_CALLBACK handlerValue
namespace pressed {
#include "emitted/widgets/handler.cpp"
}

namespace {

class HandlerTest : public Surroundings {
protected:
    using Function = std::function<std::any()>;
    int runs = 0;
};

TEST_F(HandlerTest, RunsAFunctionOnce) {
    handlerValue = Function([this] {
        runs++;
        return std::any();
    });
    pressed::handler();
    EXPECT_EQ(runs, 1);
}

TEST_F(HandlerTest, PassesOverAnyOtherValue) {
    const std::any others[] = {std::any(), std::any(5LL), std::any(std::string("அ")),
                               std::any(std::function<void()>([this] { runs++; })),
                               std::any(std::function<std::any(std::any)>([this](std::any value) {
                                   runs++;
                                   return value;
                               }))};
    for (const std::any& other : others) {
        handlerValue = other;
        EXPECT_NO_THROW(pressed::handler()) << other.type().name();
    }
    EXPECT_EQ(runs, 0);
}

TEST_F(HandlerTest, SwallowsWhatTheFunctionThrows) {
    handlerValue = Function([this]() -> std::any {
        runs++;
        throw std::runtime_error("அ");
    });
    EXPECT_NO_THROW(pressed::handler());
    handlerValue = Function([this]() -> std::any {
        runs++;
        throw 5;
    });
    EXPECT_NO_THROW(pressed::handler());
    EXPECT_EQ(runs, 2);
}

TEST_F(HandlerTest, ChangesWhatTheRestOfTheFrameSees) {
    handlerValue = Function([] {
        global_vars["அ"] = 5LL;
        return std::any();
    });
    frame([] {
        pressed::handler();
        EXPECT_EQ(fn_any_to_string(global_vars["அ"]), "5");
    });
}

}  // namespace
