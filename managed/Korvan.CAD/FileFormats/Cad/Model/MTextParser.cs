using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Reads the inline codes of multi-line text. Braces keep and restore the character format; a code that is not
/// known, or whose argument cannot be read, is shown as it stands.
/// </summary>
internal sealed class MTextParser
{
    private const int MaxGroups = 256;

    /// <summary>The characters in which the semicolon after the argument of a code is looked for.</summary>
    private const int MaxArgument = 1024;
    private const int MaxSharedFormats = 256;

    private readonly string _text;
    private readonly double _baseHeight;
    private readonly Queue<MTextToken> _tokens = new();
    private readonly Dictionary<MTextFormat, MTextFormat> _formats = [];
    private readonly Stack<MTextFormat> _groups = new();
    private readonly StringBuilder _word = new();
    private MTextFormat _format;
    private ParagraphFormat _paragraph = ParagraphFormat.Default;
    private int _at;
    private int _semicolon = -1;

    private MTextParser(string text, MTextFormat start)
    {
        _text = text;
        _format = start;
        _baseHeight = start.Height;
    }

    /// <summary>Reads tokens one by one, so that a long text is never in memory as a whole.</summary>
    internal static IEnumerable<MTextToken> Parse(string text, MTextFormat start)
    {
        var parser = new MTextParser(text, start);
        while (parser._at < text.Length)
        {
            parser.ReadNext();
            while (parser._tokens.TryDequeue(out MTextToken token))
            {
                Budget.Check();
                yield return token;
            }
        }

        parser.FlushWord();
        while (parser._tokens.TryDequeue(out MTextToken token))
        {
            yield return token;
        }
    }

    private void ReadNext()
    {
        char c = _text[_at];
        switch (c)
        {
            case '\\' when _at + 1 < _text.Length:
                ReadCode();
                break;
            case '{':
                FlushWord();
                OpenGroup();
                break;
            case '}':
                FlushWord();
                CloseGroup();
                break;
            case ' ':
                Emit(MTextTokenKind.Space);
                _at++;
                break;
            case '\n':
                Emit(MTextTokenKind.Paragraph);
                _at++;
                break;
            case '\t':
                Emit(MTextTokenKind.Tab);
                _at++;
                break;
            case '^' when _at + 1 < _text.Length && _text[_at + 1] is 'I' or 'J' or 'M':
                ReadCaret();
                break;
            case '%' when _at + 2 < _text.Length && _text[_at + 1] == '%' && "uUoOkK".Contains(_text[_at + 2]):
                SwitchBar(_text[_at + 2]);
                break;
            default:
                _at += TextCodes.ReadCharacter(_text, _at, _word);
                break;
        }
    }

    private void ReadCode()
    {
        char code = _text[_at + 1];
        if (code is 'U' or 'M' && TextCodes.TryReadUnicode(_text, _at, _word, out int length))
        {
            _at += length;
            return;
        }

        int codeStart = _at;
        _at += 2;
        switch (code)
        {
            case '\\' or '{' or '}':
                _word.Append(code);
                return;
            case '~':
                _word.Append('\u00a0');
                return;
            case 'P' or 'X':
                Emit(MTextTokenKind.Paragraph);
                return;
            case 'N':
                Emit(MTextTokenKind.Column);
                return;
        }

        FlushWord();
        if (!TrySetBar(code) && !TryReadArgument(code))
        {
            _at = codeStart + 1;
            _word.Append('\\');
        }
    }

    private bool TrySetBar(char code)
    {
        switch (code)
        {
            case 'L' or 'l':
                SetFormat(_format with { Underline = code == 'L' });
                return true;
            case 'O' or 'o':
                SetFormat(_format with { Overline = code == 'O' });
                return true;
            case 'K' or 'k':
                SetFormat(_format with { Strike = code == 'K' });
                return true;
            default:
                return false;
        }
    }

    private bool TryReadArgument(char code)
    {
        if (!"fFHWQTACcpS".Contains(code))
        {
            return false;
        }

        string? argument = code == 'S' ? StackArgument() : Argument();
        if (argument == null)
        {
            return false;
        }

        switch (code)
        {
            case 'f' or 'F':
                SetFont(argument);
                return true;
            case 'p':
                _paragraph = ParagraphCodes.Parse(argument, _paragraph, _baseHeight);
                return true;
            case 'S':
                EmitStack(argument);
                return true;
            default:
                SetNumber(code, argument);
                return true;
        }
    }

    private void SetNumber(char code, string argument)
    {
        bool relative = argument.EndsWith('x') || argument.EndsWith('X');
        string digits = relative ? argument[..^1] : argument;
        if (!double.TryParse(digits, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
            || !double.IsFinite(value))
        {
            return;
        }

        SetFormat(code switch
        {
            'H' when value > 0 => _format with { Height = relative ? _format.Height * value : value },
            'W' when value > 0 => _format with { WidthFactor = relative ? _format.WidthFactor * value : value },
            'Q' => _format with { ObliqueDegrees = Math.Clamp(value, -85, 85) },
            'T' when value > 0 => _format with { Tracking = relative ? _format.Tracking * value : value },
            'A' => _format with { Align = (StackAlign)Math.Clamp((int)value, 0, 2) },
            'C' => _format with { Color = new InlineColor(true, false, (int)value) },
            'c' => _format with { Color = new InlineColor(true, true, SwapRedBlue((int)value)) },
            _ => _format,
        });
    }

    // Inline true colours keep red in the low byte.
    private static int SwapRedBlue(int bgr) => ((bgr & 0xff) << 16) | (bgr & 0xff00) | ((bgr >> 16) & 0xff);

    private void SetFont(string argument)
    {
        string[] parts = argument.Split('|');
        string family = parts[0].Trim();
        bool bold = false;
        bool italic = false;
        for (int i = 1; i < parts.Length; i++)
        {
            bold |= parts[i] is "b1" or "B1";
            italic |= parts[i] is "i1" or "I1";
        }

        bool outline = parts.Length > 1 || family.Contains(' ');
        FontSpec spec = outline ? FontTable.FromFamily(family, bold, italic) : FontTable.FromName(family);
        SetFormat(_format with { Font = spec, ToleranceSymbols = FontTable.IsToleranceSymbolFont(family) });
    }

    /// <summary>The text up to the next semicolon, or null when there is none.</summary>
    private string? Argument()
    {
        if (_semicolon < _at)
        {
            int found = _text.IndexOf(';', _at);
            _semicolon = found < 0 ? int.MaxValue : found;
        }

        if (_semicolon == int.MaxValue || _semicolon - _at > MaxArgument)
        {
            return null;
        }

        string argument = _text[_at.._semicolon];
        _at = _semicolon + 1;
        return argument;
    }

    /// <summary>Like <see cref="Argument"/>, but a backslash keeps a semicolon or divider as text (marked by a
    /// zero).</summary>
    private string? StackArgument()
    {
        if (!HasStackEnd())
        {
            return null;
        }

        var result = new StringBuilder();
        for (int i = _at; i < _text.Length; i++)
        {
            char c = _text[i];
            if (c == ';')
            {
                _at = i + 1;
                return result.ToString();
            }

            if (c == '\\' && i + 1 < _text.Length)
            {
                if (TextCodes.TryReadUnicode(_text, i, result, out int length))
                {
                    i += length - 1;
                    continue;
                }

                result.Append('\0').Append(_text[++i]);
            }
            else if (c == '%' && i + 2 < _text.Length && _text[i + 1] == '%')
            {
                i += TextCodes.ReadCharacter(_text, i, result) - 1;
            }
            else
            {
                result.Append(c);
            }
        }

        return null;
    }

    private bool HasStackEnd()
    {
        for (int i = _at; i < _text.Length && i - _at <= MaxArgument; i++)
        {
            switch (_text[i])
            {
                case ';':
                    return true;
                case '\\':
                    i++;
                    break;
            }
        }

        return false;
    }

    private void EmitStack(string argument)
    {
        int divider = -1;
        for (int i = 0; i < argument.Length && divider < 0; i++)
        {
            if (argument[i] == '\0')
            {
                i++;
            }
            else if (argument[i] is '/' or '#' or '^')
            {
                divider = i;
            }
        }

        string upper = (divider < 0 ? argument : argument[..divider]).Replace("\0", string.Empty);
        string lower = divider < 0 ? string.Empty : argument[(divider + 1)..].Replace("\0", string.Empty);
        char sign = divider < 0 ? '^' : argument[divider];
        _tokens.Enqueue(new MTextToken(MTextTokenKind.Stack, upper.Trim(), lower.Trim(), sign, _format, _paragraph));
    }

    private void ReadCaret()
    {
        char next = _text[_at + 1];
        _at += 2;
        if (next == 'I')
        {
            Emit(MTextTokenKind.Tab);
        }
        else if (next == 'J')
        {
            Emit(MTextTokenKind.Paragraph);
        }
    }

    private void SwitchBar(char which)
    {
        FlushWord();
        _at += 3;
        SetFormat(char.ToLowerInvariant(which) switch
        {
            'u' => _format with { Underline = !_format.Underline },
            'o' => _format with { Overline = !_format.Overline },
            _ => _format with { Strike = !_format.Strike },
        });
    }

    private void OpenGroup()
    {
        _at++;
        if (_groups.Count < MaxGroups)
        {
            _groups.Push(_format);
        }
    }

    private void CloseGroup()
    {
        _at++;
        if (_groups.Count > 0)
        {
            _format = _groups.Pop();
        }
    }

    private void Emit(MTextTokenKind kind)
    {
        FlushWord();
        _tokens.Enqueue(new MTextToken(kind, string.Empty, string.Empty, '\0', _format, _paragraph));
    }

    private void SetFormat(MTextFormat format)
    {
        if (_formats.TryGetValue(format, out MTextFormat? shared))
        {
            _format = shared;
            return;
        }

        _format = format;
        if (_formats.Count < MaxSharedFormats)
        {
            _formats.Add(format, format);
        }
    }

    private void FlushWord()
    {
        if (_word.Length > 0)
        {
            string letters = _format.ToleranceSymbols ? ToleranceSymbols.Translate(_word.ToString()) : _word.ToString();
            _tokens.Enqueue(new MTextToken(MTextTokenKind.Word, letters, string.Empty, '\0', _format, _paragraph));
            _word.Clear();
        }
    }
}
