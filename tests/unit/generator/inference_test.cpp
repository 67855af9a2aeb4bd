// Static kinds, row by row.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// The kind of `expression` behind the statements of `setup`.
VarType kindOf(const std::string& expression, const std::string& setup = "") {
    const Parsed parsed = parse(setup + "விடை_மாறி = " + expression + "\n");
    const Parser& parser = *parsed.parser;
    Generator generator(parsed.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, "", "test.பொழில்");
    generator.generate();
    return generator.variableTypes.at("விடை_மாறி");
}

TEST(Inference, Literals) {
    EXPECT_EQ(kindOf("1"), VarType::Integer);
    EXPECT_EQ(kindOf("1.5"), VarType::Decimal);
    EXPECT_EQ(kindOf("\"அ\""), VarType::String);
    EXPECT_EQ(kindOf("மெய்"), VarType::Boolean);
    EXPECT_EQ(kindOf("[1]"), VarType::List);
    EXPECT_EQ(kindOf("{}"), VarType::Map);
    EXPECT_EQ(kindOf("x => x"), VarType::Object);
    EXPECT_EQ(kindOf("'அ'"), VarType::Dynamic);
}

TEST(Inference, BuiltinCalls) {
    EXPECT_EQ(kindOf("உள்ளீடு(\"\")"), VarType::String);
    EXPECT_EQ(kindOf("நீளம்(\"\")"), VarType::Integer);
    EXPECT_EQ(kindOf("எடு(அ, 0)"), VarType::Dynamic);
    for (const char* name : {"வர்க்கமூலம்", "சைன்", "டேன்", "மடக்கு"}) {
        EXPECT_EQ(kindOf(std::string(name) + "(1.0)"), VarType::Decimal) << name;
    }
    EXPECT_EQ(kindOf("அடுக்கு(1.0, 2.0)"), VarType::Decimal);
    EXPECT_EQ(kindOf("தனிமதிப்பு(1.5)"), VarType::Decimal);
    EXPECT_EQ(kindOf("தனிமதிப்பு(1)"), VarType::Integer);
    EXPECT_EQ(kindOf("மேல்எண்(1.5)"), VarType::Integer);
    EXPECT_EQ(kindOf("கீழ்எண்(1.5)"), VarType::Integer);
    EXPECT_EQ(kindOf("இப்போதுநேரம்()"), VarType::Time);
    EXPECT_EQ(kindOf("வரம்பு(1)"), VarType::Dynamic);
    EXPECT_EQ(kindOf("பிளவு(\"\", \"\")"), VarType::List);
    EXPECT_EQ(kindOf("பதில்(\"\", \"\", \"\")"), VarType::String);
    for (const char* name : {"பெரியஎ", "சிறியஎ", "கோப்பு_படி"}) {
        EXPECT_EQ(kindOf(std::string(name) + "(\"\")"), VarType::String) << name;
    }
    EXPECT_EQ(kindOf("கோப்பு_உள்ளதா(\"\")"), VarType::Boolean);
    EXPECT_EQ(kindOf("கோப்பு_அழி(\"\")"), VarType::Boolean);
    EXPECT_EQ(kindOf("எண்(\"5\")"), VarType::Dynamic);
}

TEST(Inference, OtherCalls) {
    const std::string account = "கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\n";
    EXPECT_EQ(kindOf("கணக்கு()", account), VarType::Object);
    EXPECT_EQ(kindOf("கூடு()", "செயல் கூடு():\n    திரும்பு 1\n"), VarType::Dynamic);
    EXPECT_EQ(kindOf("நேரம்.வினாடிகள்()"), VarType::Decimal);
}

TEST(Inference, StructureNamedLikeABuiltin) {
    const auto structure = [](const std::string& name) {
        return "கட்டமைப்பு " + name + ":\n    இடம் = 5\n";
    };
    // A structure comes before the text and file functions and behind all others.
    for (const char* name :
         {"பிளவு", "பதில்", "பெரியஎ", "சிறியஎ", "கோப்பு_படி", "கோப்பு_உள்ளதா", "கோப்பு_அழி"}) {
        EXPECT_EQ(kindOf(std::string(name) + "()", structure(name)), VarType::Object) << name;
    }
    EXPECT_EQ(kindOf("நீளம்()", structure("நீளம்")), VarType::Integer);
    EXPECT_EQ(kindOf("மேல்எண்()", structure("மேல்எண்")), VarType::Integer);
    EXPECT_EQ(kindOf("தனிமதிப்பு()", structure("தனிமதிப்பு")), VarType::Dynamic);
    EXPECT_EQ(kindOf("இப்போதுநேரம்()", structure("இப்போதுநேரம்")), VarType::Time);
}

/// inferExpressionType alone: for forms that generation refuses.
VarType kindOfTree(const std::string& expression) {
    const Parsed parsed = parse("விடை_மாறி = " + expression + "\n");
    const auto& statement = dynamic_cast<ExpressionStatement&>(*parsed.program.statements.at(0));
    const auto& assignment = dynamic_cast<AssignmentExpression&>(*statement.expression);
    return Generator(parsed.program, {}, {}, {}, "", "")
        .inferExpressionType(assignment.value.get());
}

TEST(Inference, MembersThatAreCalled) {
    EXPECT_EQ(kindOfTree("நேரம்.உருவாக்கு()"), VarType::Time);
    EXPECT_EQ(kindOfTree("அ.தேதி()"), VarType::String);
    EXPECT_EQ(kindOfTree("அ.நேரம்()"), VarType::String);
    EXPECT_EQ(kindOfTree("அ.முழுவதும்()"), VarType::String);
    EXPECT_EQ(kindOfTree("அ.வேறு()"), VarType::Dynamic);
    EXPECT_EQ(kindOfTree("அ.வினாடிகள்()"), VarType::Dynamic);
    EXPECT_EQ(kindOfTree("நேரம்.முழுவதும்()"), VarType::String);
    EXPECT_EQ(kindOfTree("தனிமதிப்பு()"), VarType::Dynamic);
    EXPECT_EQ(kindOfTree("அ[0]()"), VarType::Dynamic);
}

/// A node for inferExpressionType: what the scanner refuses, or the grammar makes another node of.
template <typename Node, typename... Arguments>
VarType kindOfNode(Arguments&&... arguments) {
    const Program program;
    const Node node(std::forward<Arguments>(arguments)...);
    return Generator(program, {}, {}, {}, "", "").inferExpressionType(&node);
}

std::unique_ptr<Expression> unknown() { return std::make_unique<VariableAccess>("அ"); }
std::unique_ptr<Expression> one() { return std::make_unique<NumberLiteral>("1"); }
Token word(const std::string& text) { return {TokenType::IDENTIFIER, text, 1}; }

TEST(Inference, CosineIsADecimal) {
    EXPECT_EQ(kindOfNode<CallExpression>(std::make_unique<VariableAccess>("காஸ்"),
                                         std::vector<std::unique_ptr<Expression>>()),
              VarType::Decimal);
}

TEST(Inference, TruthOperatorsOfBinaryNodes) {
    for (const char* op : {"மற்றும்", "அல்லது"}) {
        EXPECT_EQ(kindOfNode<BinaryExpression>(unknown(), word(op), unknown()), VarType::Boolean);
        EXPECT_EQ(kindOfNode<BinaryExpression>(one(), word(op), one()), VarType::Integer);
        EXPECT_EQ(kindOfNode<LogicalExpression>(one(), word(op), one()), VarType::Dynamic);
    }
}

TEST(Inference, ReceiverIsAnObjectInsideAStructureAlone) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    generator.localVariables["தான்"] = true;
    for (const char* name : {"தான்", "self"}) {
        VariableAccess access(name);
        access.line = 4;
        generator.currentStruct = "கணக்கு";
        EXPECT_EQ(generator.inferExpressionType(&access), VarType::Object) << name;
        generator.currentStruct.clear();
        EXPECT_TRUE(refuses("பொழில்-325", 4, [&] { generator.inferExpressionType(&access); }));
    }
    EXPECT_TRUE(refuses("பொழில்-325", 1, [] { kindOfTree("1 கூட்டு தான்"); }));
}

TEST(Inference, ALocalsKindIsUnknownButItsMembersKindIsNot) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    generator.variableTypes["நே"] = VarType::Time;
    generator.localVariables["நே"] = true;
    const VariableAccess access("நே");
    EXPECT_EQ(generator.inferExpressionType(&access), VarType::Dynamic);
    const GetExpression year(std::make_unique<VariableAccess>("நே"), word("ஆண்டு"));
    EXPECT_EQ(generator.inferExpressionType(&year), VarType::Integer);
    const GetExpression other(std::make_unique<VariableAccess>("நே"), word("வேறு"));
    EXPECT_EQ(generator.inferExpressionType(&other), VarType::Dynamic);
    EXPECT_TRUE(generator.out.str().empty());
}

TEST(Inference, Names) {
    EXPECT_EQ(kindOf("அ", "அ = 1\n"), VarType::Integer);
    EXPECT_EQ(kindOf("அ", "அ = 1\nஅ = \"a\"\n"), VarType::String) << "the last assignment holds";
    EXPECT_EQ(kindOf("அ"), VarType::Dynamic) << "never assigned";
    EXPECT_EQ(kindOf("அ", "அ = அ\nஅ = ஆ = 1\n"), VarType::Dynamic) << "an assignment hides a kind";
}

TEST(Inference, TimeFields) {
    const std::string now = "நே = இப்போதுநேரம்()\n";
    for (const char* field : {"ஆண்டு", "மாதம்", "நாள்", "மணி", "நிமிடம்", "வினாடி", "வாரநாள்"}) {
        EXPECT_EQ(kindOf(std::string("நே.") + field, now), VarType::Integer) << field;
    }
    EXPECT_TRUE(refuses("பொழில்-304", 2, [] { generate("செயல் சே(நே):\n    திரும்பு நே.ஆண்டு\n"); }))
        << "a parameter's kind is unknown";
}

TEST(Inference, PropertyOfAnObjectIsUnknown) {
    EXPECT_EQ(kindOf("க.இருப்பு", "கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\nக = கணக்கு()\n"),
              VarType::Dynamic);
}

TEST(Inference, BinaryRowsInOrder) {
    EXPECT_EQ(kindOf("\"a\" கூட்டு அ"), VarType::String);
    EXPECT_EQ(kindOf("1 இணை \"a\""), VarType::String);
    EXPECT_EQ(kindOf("1 கூட்டு 2.5"), VarType::Decimal);
    EXPECT_EQ(kindOf("1 கூட்டு 2"), VarType::Integer);
    EXPECT_EQ(kindOf("1 இணை 2"), VarType::Integer) << "no side is a text";
    EXPECT_EQ(kindOf("1 இணை அ"), VarType::Dynamic);
    EXPECT_EQ(kindOf("\"a\" சமம் \"b\""), VarType::Boolean);
    EXPECT_EQ(kindOf("\"a\" சமம் 1.5"), VarType::Decimal) << "a decimal side comes first";
    EXPECT_EQ(kindOf("1 சமம் 2"), VarType::Integer) << "two known integers come first";
    EXPECT_EQ(kindOf("1.5 பெரிது அ"), VarType::Decimal);
    for (const char* op : {"சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"}) {
        EXPECT_EQ(kindOf(std::string("அ ") + op + " 1"), VarType::Boolean) << op;
    }
    EXPECT_EQ(kindOf("அ கூட்டு 1"), VarType::Dynamic);
    EXPECT_EQ(kindOf("அ மற்றும் ஆ"), VarType::Dynamic) << "a logical node is none of the rows";
}

TEST(Inference, TernaryTakesItsFirstBranch) {
    EXPECT_EQ(kindOf("1 சமம் 1 ? \"a\" : 2"), VarType::String);
    EXPECT_EQ(kindOf("1 சமம் 1 ? அ : 2"), VarType::Dynamic);
}

TEST(Inference, WhatHidesAKind) {
    EXPECT_EQ(kindOf("(1)"), VarType::Dynamic);
    EXPECT_EQ(kindOf("குறை 1"), VarType::Dynamic);
    EXPECT_EQ(kindOf("இல்லை மெய்"), VarType::Dynamic);
    EXPECT_EQ(kindOf("அ[0]"), VarType::Dynamic);
    EXPECT_EQ(kindOf("மெய் மற்றும் மெய்"), VarType::Dynamic);
    EXPECT_EQ(kindOf("ஆ = 1"), VarType::Dynamic);
    EXPECT_EQ(kindOf("\"#FF0000\""), VarType::Dynamic) << "a colour";
    Program program;
    EXPECT_EQ(Generator(program, {}, {}, {}, "", "").inferExpressionType(nullptr),
              VarType::Dynamic);
}

}  // namespace
