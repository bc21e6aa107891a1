using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Reads the inline codes of multi-line text. Braces keep and restore the character format; a code that is not
/// known, or whose argument cannot be read, is shown as it stands.
/// </summary>
internal sealed class MTextParser
{
    private const int DeepestGroup = 256;

    private readonly string text;
    private readonly double baseHeight;
    private readonly List<MTextToken> tokens = [];
    private readonly Stack<MTextFormat> groups = new();
    private readonly StringBuilder word = new();
    private MTextFormat format;
    private ParagraphFormat paragraph = ParagraphFormat.Default;
    private int at;

    private MTextParser(string text, in MTextFormat start)
    {
        this.text = text;
        format = start;
        baseHeight = start.Height;
    }

    internal static List<MTextToken> Parse(string text, in MTextFormat start)
    {
        var parser = new MTextParser(text, start);
        parser.Run();
        return parser.tokens;
    }

    private void Run()
    {
        while (at < text.Length)
        {
            char c = text[at];
            switch (c)
            {
                case '\\' when at + 1 < text.Length:
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
                    at++;
                    break;
                case '\n':
                    Emit(MTextTokenKind.Paragraph);
                    at++;
                    break;
                case '\t':
                    Emit(MTextTokenKind.Tab);
                    at++;
                    break;
                case '^' when at + 1 < text.Length && text[at + 1] is 'I' or 'J' or 'M':
                    ReadCaret();
                    break;
                case '%' when at + 2 < text.Length && text[at + 1] == '%' && "uUoOkK".Contains(text[at + 2]):
                    SwitchBar(text[at + 2]);
                    break;
                default:
                    at += TextCodes.ReadCharacter(text, at, word);
                    break;
            }
        }

        FlushWord();
    }

    private void ReadCode()
    {
        char code = text[at + 1];
        if (code is 'U' or 'M' && TextCodes.TryReadUnicode(text, at, word, out int length))
        {
            at += length;
            return;
        }

        int codeStart = at;
        at += 2;
        switch (code)
        {
            case '\\' or '{' or '}':
                word.Append(code);
                return;
            case '~':
                word.Append('\u00a0');
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
            at = codeStart + 1;
            word.Append('\\');
        }
    }

    private bool TrySetBar(char code)
    {
        switch (code)
        {
            case 'L' or 'l':
                format = format with { Underline = code == 'L' };
                return true;
            case 'O' or 'o':
                format = format with { Overline = code == 'O' };
                return true;
            case 'K' or 'k':
                format = format with { Strike = code == 'K' };
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
                paragraph = ParagraphCodes.Parse(argument, paragraph, baseHeight);
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
        if (!double.TryParse(digits, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) || !double.IsFinite(value))
        {
            return;
        }

        format = code switch
        {
            'H' when value > 0 => format with { Height = relative ? format.Height * value : value },
            'W' when value > 0 => format with { WidthFactor = relative ? format.WidthFactor * value : value },
            'Q' => format with { ObliqueDegrees = Math.Clamp(value, -85, 85) },
            'T' when value > 0 => format with { Tracking = relative ? format.Tracking * value : value },
            'A' => format with { Align = (StackAlign)Math.Clamp((int)value, 0, 2) },
            'C' => format with { Color = new InlineColor(true, false, (int)value) },
            'c' => format with { Color = new InlineColor(true, true, SwapRedBlue((int)value)) },
            _ => format,
        };
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
        format = format with { Font = spec, ToleranceSymbols = FontTable.IsToleranceSymbolFont(family) };
    }

    /// <summary>The text up to the next semicolon, or null when there is none.</summary>
    private string? Argument()
    {
        int end = text.IndexOf(';', at);
        if (end < 0)
        {
            return null;
        }

        string argument = text[at..end];
        at = end + 1;
        return argument;
    }

    /// <summary>Like <see cref="Argument"/>, but a backslash keeps a semicolon or divider as text (marked by a zero).</summary>
    private string? StackArgument()
    {
        var result = new StringBuilder();
        for (int i = at; i < text.Length; i++)
        {
            char c = text[i];
            if (c == ';')
            {
                at = i + 1;
                return result.ToString();
            }

            if (c == '\\' && i + 1 < text.Length)
            {
                if (TextCodes.TryReadUnicode(text, i, result, out int length))
                {
                    i += length - 1;
                    continue;
                }

                result.Append('\0').Append(text[++i]);
            }
            else if (c == '%' && i + 2 < text.Length && text[i + 1] == '%')
            {
                i += TextCodes.ReadCharacter(text, i, result) - 1;
            }
            else
            {
                result.Append(c);
            }
        }

        return null;
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
        tokens.Add(new MTextToken(MTextTokenKind.Stack, upper.Trim(), lower.Trim(), sign, format, paragraph));
    }

    private void ReadCaret()
    {
        char next = text[at + 1];
        at += 2;
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
        at += 3;
        format = char.ToLowerInvariant(which) switch
        {
            'u' => format with { Underline = !format.Underline },
            'o' => format with { Overline = !format.Overline },
            _ => format with { Strike = !format.Strike },
        };
    }

    private void OpenGroup()
    {
        at++;
        if (groups.Count < DeepestGroup)
        {
            groups.Push(format);
        }
    }

    private void CloseGroup()
    {
        at++;
        if (groups.Count > 0)
        {
            format = groups.Pop();
        }
    }

    private void Emit(MTextTokenKind kind)
    {
        FlushWord();
        tokens.Add(new MTextToken(kind, string.Empty, string.Empty, '\0', format, paragraph));
    }

    private void FlushWord()
    {
        if (word.Length > 0)
        {
            string letters = format.ToleranceSymbols ? ToleranceSymbols.Translate(word.ToString()) : word.ToString();
            tokens.Add(new MTextToken(MTextTokenKind.Word, letters, string.Empty, '\0', format, paragraph));
            word.Clear();
        }
    }
}
