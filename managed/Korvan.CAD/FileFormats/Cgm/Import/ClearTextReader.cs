using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;


namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Reads the commands of a clear text metafile one by one (ISO/IEC 8632-4).</summary>
internal sealed class ClearTextReader
{
    private const string EndOfDefaults = "ENDMFDEFAULTS";
    private const string Incremental = "INCR";

    // The class and number of elements that the standard does not define.
    private static readonly CommandConstructorArguments UnknownElement = new((ClassCode)15, 127);

    private static readonly HashSet<string> IncrementalKeywords =
        new(StringComparer.OrdinalIgnoreCase) { "LINE", "DISJTLINE", "MARKER", "POLYGON", "POLYGONSET" };

    private readonly ClearTextScanner _scanner;
    private readonly ClearTextReading _reading;
    private readonly CodingState _state = new();
    private readonly MessageLog _log = new();
    private readonly string _name;
    private readonly bool _ignoreErrors;

    private bool _isInDefaults;
    private bool _isAtEnd;

    internal ClearTextReader(byte[] data, string name, bool ignoreErrors)
    {
        _scanner = new ClearTextScanner(data);
        _reading = new ClearTextReading(_scanner, _state, ReadDefaults);
        _name = name;
        _ignoreErrors = ignoreErrors;
    }

    internal IReadOnlyList<Message> Messages => _log.Messages;

    /// <summary>Gets whether a coordinate has a fraction although the type of coordinates is integer.</summary>
    internal bool HasFractions { get; private set; }

    /// <summary>Reads the next element.</summary>
    /// <returns>Its command, or <c>null</c> after the end of the metafile.</returns>
    internal Command? ReadCommand()
    {
        while (!_isAtEnd && SkipToKeyword())
        {
            Budget.Check();
            int start = _scanner.Position;
            string keyword = _scanner.ReadWord();
            if (_isInDefaults && keyword.Equals(EndOfDefaults, StringComparison.OrdinalIgnoreCase))
            {
                return null;
            }

            if (TryRead(start, keyword) is Command command)
            {
                NoteFractions(start, command, keyword);
                _isAtEnd = command is
                { ElementClass: ClassCode.DelimiterElement, ElementId: (int)DelimiterElement.EndMetafile };
                return command;
            }
        }

        if (_isInDefaults)
        {
            throw new CgmDataException($"the file ends without {EndOfDefaults}");
        }

        if (!_isAtEnd)
        {
            Note(Severity.Warning, _scanner.Position, UnknownElement, "", "the file ends without ENDMF");
            _isAtEnd = true;
        }

        return null;
    }

    private void NoteFractions(int start, Command command, string keyword)
    {
        if (_state.HasFractions && !HasFractions)
        {
            HasFractions = true;
            var element = new CommandConstructorArguments(command.ElementClass, command.ElementId);
            Note(Severity.Warning, start, element, keyword, "a coordinate is not whole, but the VDC type is INTEGER");
        }
    }

    private static ElementEntry? Find(string keyword, out bool isIncremental)
    {
        ElementEntry? entry = ElementTables.Find(keyword);
        isIncremental = entry is null && keyword.StartsWith(Incremental, StringComparison.OrdinalIgnoreCase)
            && IncrementalKeywords.Contains(keyword[Incremental.Length..]);
        return isIncremental ? ElementTables.Find(keyword[Incremental.Length..]) : entry;
    }

    private bool SkipToKeyword()
    {
        ClearTextToken token = _scanner.Peek();
        while (token is ClearTextToken.Terminator or ClearTextToken.String)
        {
            int start = _scanner.Position;
            if (_scanner.SkipElement() > 0)
            {
                Note(Severity.Warning, start, UnknownElement, "", "a string where a keyword is expected is left out");
            }

            token = _scanner.Peek();
        }

        return token == ClearTextToken.Word;
    }

    private Command? TryRead(int start, string keyword)
    {
        ElementEntry? entry = Find(keyword, out bool isIncremental);
        if (entry is null)
        {
            return Unknown(start, keyword);
        }

        Command command = entry.Create();
        var arguments = new CommandConstructorArguments(command.ElementClass, command.ElementId);
        try
        {
            _reading.BeginElement(isIncremental);
            command.Exchange(_reading);
            command.Apply(_state);
            int left = _scanner.SkipElement();
            if (left > 0)
            {
                Note(Severity.Warning, start, arguments, keyword, $"{left} parameters are left over");
            }

            return command;
        }
        catch (CgmDataException e)
        {
            _state.ReplacesDefaults &= _isInDefaults;
            Report(e, start, arguments, keyword);
            _scanner.SkipElement();
            return null;
        }
    }

    private UnknownCommand Unknown(int start, string keyword)
    {
        _scanner.SkipElement();
        const string text = "the standard does not define the element; it is kept as it is";
        Note(Severity.Unsupported, start, UnknownElement, keyword, text);
        string source = _scanner.Source(start, _scanner.Position).TrimEnd(';', '/');
        return new UnknownCommand(UnknownElement) { Source = source };
    }

    private List<Command> ReadDefaults()
    {
        if (_isInDefaults)
        {
            throw new CgmDataException("it is nested in an element of its kind");
        }

        _scanner.SkipElement();
        _isInDefaults = true;
        try
        {
            var commands = new List<Command>();
            while (ReadCommand() is Command command)
            {
                commands.Add(command);
            }

            return commands;
        }
        finally
        {
            _isInDefaults = false;
        }
    }

    private void Report(CgmDataException e, int start, CommandConstructorArguments element, string keyword)
    {
        if (_ignoreErrors)
        {
            Note(Severity.Error, start, element, keyword, e.Message);
            return;
        }

        int line = _scanner.LineOf(start);
        string place = MessageLog.Place("line", line, element.ElementClass, element.ElementId, keyword);
        throw new ImageLoadException($"'{_name}', {place}: {e.Message}.");
    }

    private void Note(Severity severity, int start, CommandConstructorArguments element, string keyword, string text)
    {
        int line = _scanner.LineOf(start);
        string place = MessageLog.Place("line", line, element.ElementClass, element.ElementId, keyword);
        _log.Add(new Message(severity, element.ElementClass, element.ElementId, line, $"{place}: {text}"));
    }
}
