using System;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Texts without their formatting codes.</summary>
internal static class PlainText
{
    /// <summary>Takes the codes out of a single line: %%c, %%d, %%p and %%nnn are letters, %%u, %%o, %%k switches.
    /// </summary>
    internal static string FromText(string text)
    {
        int next = text.IndexOf("%%", StringComparison.Ordinal);
        if (next < 0)
        {
            return text;
        }

        StringBuilder result = new(text.Length);
        int done = 0;
        while (next >= 0 && next + 2 < text.Length)
        {
            result.Append(text, done, next - done);
            done = next + AppendPercent(text.AsSpan(next + 2), result) + 2;
            next = text.IndexOf("%%", done, StringComparison.Ordinal);
        }

        return result.Append(text, done, text.Length - done).ToString();
    }

    /// <summary>Takes the codes out of a text of several lines; lines end with a line feed.</summary>
    internal static string FromMText(string text)
    {
        StringBuilder result = new(text.Length);
        for (int i = 0; i < text.Length; i++)
        {
            char letter = text[i];
            if (letter == '\\' && i + 1 < text.Length)
            {
                i = AppendCommand(text, i + 1, result);
            }
            else if (letter == '^' && i + 1 < text.Length)
            {
                result.Append(Caret(text[++i]));
            }
            else if (letter is not ('{' or '}'))
            {
                result.Append(letter);
            }
        }

        return FromText(result.ToString());
    }

    private static string Caret(char letter) => letter switch
    {
        'I' => "\t",
        'J' => "\n",
        'M' => "",
        ' ' => "^",
        _ => "^" + letter,
    };

    // Gives the place of the last letter of the command.
    private static int AppendCommand(string text, int place, StringBuilder result)
    {
        switch (text[place])
        {
            case 'P' or 'N' or 'X':
                result.Append('\n');
                return place;
            case '~':
                result.Append('\u00A0');
                return place;
            case '\\' or '{' or '}':
                result.Append(text[place]);
                return place;
            case 'L' or 'l' or 'O' or 'o' or 'K' or 'k':
                return place;
            case 'S':
                return AppendStack(text, place + 1, result);
            case 'A' or 'C' or 'c' or 'F' or 'f' or 'H' or 'p' or 'Q' or 'T' or 'W':
                return End(text, place);
            default:
                result.Append('\\').Append(text[place]);
                return place;
        }
    }

    private static int AppendStack(string text, int start, StringBuilder result)
    {
        int end = End(text, start);
        ReadOnlySpan<char> stack = text.AsSpan(start, end - start).TrimEnd(';');
        foreach (char letter in stack)
        {
            result.Append(letter is '^' or '#' ? '/' : letter);
        }

        return end;
    }

    private static int End(string text, int start)
    {
        int end = text.IndexOf(';', start);
        return end < 0 ? text.Length - 1 : end;
    }

    // Gives how many letters behind the two percent signs are used.
    private static int AppendPercent(ReadOnlySpan<char> rest, StringBuilder result)
    {
        switch (char.ToLowerInvariant(rest[0]))
        {
            case 'c':
                result.Append('\u2300');
                return 1;
            case 'd':
                result.Append('\u00B0');
                return 1;
            case 'p':
                result.Append('\u00B1');
                return 1;
            case 'u' or 'o' or 'k':
                return 1;
            case '%':
                result.Append('%');
                return 1;
        }

        if (rest.Length >= 3 && byte.TryParse(rest[..3], NumberStyles.None, CultureInfo.InvariantCulture, out byte code))
        {
            result.Append((char)code);
            return 3;
        }

        result.Append("%%");
        return 0;
    }
}
