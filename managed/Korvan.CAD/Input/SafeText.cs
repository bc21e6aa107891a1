using System.Text;

namespace Korvan.CAD.Input;

/// <summary>Strings of files in messages: what would act on a terminal, a log or a web page is escaped.</summary>
internal static class SafeText
{
    /// <summary>Returns a string without control characters, characters that change the direction of text, unpaired
    /// surrogates and starts of tags.</summary>
    internal static string Of(string text)
    {
        StringBuilder? escaped = null;
        for (int i = 0; i < text.Length; i++)
        {
            bool isPair = i + 1 < text.Length && char.IsSurrogatePair(text[i], text[i + 1]);
            if (!isPair && IsActive(text, i))
            {
                escaped ??= new StringBuilder(text, 0, i, text.Length + 8);
                escaped.Append(text[i] < 256 ? $"\\x{(int)text[i]:x2}" : $"\\u{(int)text[i]:x4}");
                continue;
            }

            int length = isPair ? 2 : 1;
            escaped?.Append(text, i, length);
            i += length - 1;
        }

        return escaped?.ToString() ?? text;
    }

    private static bool IsActive(string text, int at) => text[at] switch
    {
        '<' => at + 1 < text.Length && (char.IsAsciiLetter(text[at + 1]) || text[at + 1] is '/' or '!' or '?'),
        '\u2028' or '\u2029' or (>= '\u202A' and <= '\u202E') or (>= '\u2066' and <= '\u2069') => true,
        '\uFFFE' or '\uFFFF' => true,
        char c => char.IsControl(c) || char.IsSurrogate(c),
    };
}
