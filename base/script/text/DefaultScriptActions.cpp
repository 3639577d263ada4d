#include "base/script/text/DefaultScriptActions.h"

#include "base/error/ExceptionUtils.h"
#include "base/graph/Functor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/parse/ParseError.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/ScriptBuilder.h"
#include "base/util/QuotedText.h"
#include "base/util/ScriptCharClass.h"

#include <algorithm>
#include <cassert>
#include <cctype>
#include <memory>

namespace VRK {

namespace {

// Copied from the characters beneath, without stepping the positions along.
std::string textOf(const ScriptIterator& first, const ScriptIterator& last)
{
    return std::string(first.base(), last.base());
}

bool continuesWord(char c) { return ScriptCharClass::isWordChar(c) || c == '.' || c == '"'; }

} // namespace

DefaultScriptActions::DefaultScriptActions(ScriptBuilder& builder) : builder_(builder) {}

ScriptPosition DefaultScriptActions::positionOf(const ScriptIterator& where)
{
    const ScriptFilePosition position = where.get_position();
    return ScriptPosition{position.file, position.line, position.column};
}

void DefaultScriptActions::raise(const ScriptIterator& where, const std::string& message) const
{
    const ScriptFilePosition position = where.get_position();
    ExceptionUtils::raise(
        ParseError(message, ParseError::Position(position.file, position.line, position.column)));
}

void DefaultScriptActions::propertyName(const ScriptIterator& first, const ScriptIterator& last)
{
    propertyName_ = textOf(first, last);
}

void DefaultScriptActions::propertyValue(const ScriptIterator& first, const ScriptIterator& last)
{
    builder_.addProperty(propertyName_, QuotedText::unquote(textOf(first, last)));
}

void DefaultScriptActions::scriptProperties(const ScriptIterator& first, const ScriptIterator&)
{
    builder_.attachPropertiesToScript(positionOf(first));
}

void DefaultScriptActions::word(const ScriptIterator& first, const ScriptIterator& last)
{
    word_ = textOf(first, last);
    wordPosition_ = positionOf(first);
}

void DefaultScriptActions::aliasDefined()
{
    alias_ = word_;
    aliasPosition_ = wordPosition_;
}

void DefaultScriptActions::functorName(const std::string& registeredName)
{
    functorName_ = registeredName;
}

void DefaultScriptActions::beginFunctor(const ScriptIterator& first, const ScriptIterator&)
{
    const ScriptPosition position = alias_.empty() ? positionOf(first) : aliasPosition_;
    const std::string alias = alias_;
    alias_.clear();
    builder_.beginFunctor(functorName_, alias, position);
}

void DefaultScriptActions::unknownFunctor(const ScriptIterator& first, const ScriptIterator& last)
{
    alias_.clear();
    raise(first, ScriptBuilder::unknownFunctorMessage(textOf(first, last)));
}

// What stands where the inputs of a functor should go on or end: a word that starts
// the next statement means that the ";" is missing, any other word lacks its "=".
void DefaultScriptActions::unterminatedFunctor(const ScriptIterator& first, const ScriptIterator&)
{
    ScriptIterator end = first;
    std::string word;
    while (!end.atEnd() && (std::isalnum(static_cast<unsigned char>(*end)) || *end == '_'))
        word += *end++;
    ScriptIterator next = end;
    while (!next.atEnd() && std::isspace(static_cast<unsigned char>(*next)))
        ++next;
    // "Name input = ..." or "alias := ..." begin a statement.
    const bool startsStatement =
        FactoryFarmManager::Instance().getFunctorFactory()->isRegistered(word)
        || (!next.atEnd()
            && (*next == ':' || *next == '_' || std::isalpha(static_cast<unsigned char>(*next))));
    if (!word.empty() && !startsStatement)
        raise(next, "Expecting \"=\" after the input name \"" + word + "\".");
    raise(first, "Expecting an input name, \";\" or \"{\" after the inputs of "
                     + FunctorNameUtils::describe(builder_.getCurrentFunctor()) + ".");
}

void DefaultScriptActions::beginContents(const ScriptIterator& first, const ScriptIterator&)
{
    open_.push_back(
        OpenContents{FunctorNameUtils::describe(builder_.getCurrentFunctor()), positionOf(first)});
    builder_.beginContents(positionOf(first));
}

void DefaultScriptActions::endContents(const ScriptIterator& first, const ScriptIterator&)
{
    if (open_.empty())
        raise(first, "Expecting a functor name.");
    open_.pop_back();
    builder_.endContents();
}

void DefaultScriptActions::endOfStatements(const ScriptIterator& first, const ScriptIterator&)
{
    if (open_.empty())
        return;
    const OpenContents& open = open_.back();
    raise(first, "Expecting a functor name or \"}\" to close the contents of " + open.functor
                     + " opened at line " + std::to_string(open.position.line) + ", column "
                     + std::to_string(open.position.column) + ".");
}

void DefaultScriptActions::port(const ScriptIterator&, const ScriptIterator&)
{
    port_ = &builder_.takePort(word_, wordPosition_);
}

void DefaultScriptActions::reference(const ScriptIterator& first, const ScriptIterator& last)
{
    assert(port_ != 0 && "a binding names its input before its value");
    const char* dot = std::find(first.base(), last.base(), '.');
    assert(dot != last.base() && "the grammar matches references as alias.port");
    builder_.bind(*port_, std::string(first.base(), dot), std::string(dot + 1, last.base()),
                  positionOf(first));
}

std::ptrdiff_t DefaultScriptActions::value(const ScriptScanner& scan)
{
    assert(port_ != 0 && "a binding names its input before its value");
    scan.skip(scan);
    auto reader = builder_.createValueReader(*port_, positionOf(scan.first));
    const std::ptrdiff_t length = reader->read(scan);
    checkValueEnd(scan);
    return length;
}

// A value runs up to white space, a comment or punctuation: "12abc" is no integer
// followed by an input named "abc".
void DefaultScriptActions::checkValueEnd(const ScriptScanner& scan) const
{
    if (scan.first == scan.last || !continuesWord(*scan.first))
        return;
    ScriptIterator end = scan.first;
    std::string rest;
    while (end != scan.last && rest.size() < 20 && !std::isspace(static_cast<unsigned char>(*end))
           && *end != ';')
        rest += *end++;
    raise(scan.first, "Unexpected text \"" + rest + "\" after the value of the input \""
                          + port_->getName() + "\".");
}

} // namespace VRK
