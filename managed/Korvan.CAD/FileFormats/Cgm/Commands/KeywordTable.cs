using System;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The values of an enumerated parameter and their keywords in clear text (ISO/IEC 8632-4, clause
/// 8).</summary>
internal sealed class KeywordTable(int[] values, string[] keywords)
{
    /// <summary>Gets the keywords in the order of the values.</summary>
    internal string[] Keywords => keywords;

    /// <summary>Returns a value if it is one of the table.</summary>
    /// <exception cref="CgmDataException">It is not.</exception>
    internal int Verify(int value)
    {
        return Array.IndexOf(values, value) >= 0
            ? value
            : throw new CgmDataException($"the value {value} is none of {values[0]} to {values[^1]} ({List()})");
    }

    /// <summary>Returns the keyword of a value.</summary>
    /// <exception cref="CgmDataException">The value is not one of the table.</exception>
    internal string KeywordOf(int value) => keywords[Array.IndexOf(values, Verify(value))];

    /// <summary>Returns the value of a keyword. Writers shorten and lengthen keywords: one that is the beginning of
    /// another, or begins with it, stands for it if it does for no other.</summary>
    /// <exception cref="CgmDataException">The word stands for no keyword.</exception>
    internal int ValueOf(string word)
    {
        int at = Array.FindIndex(keywords, one => one.Equals(word, StringComparison.OrdinalIgnoreCase));
        at = at >= 0 ? at : FindAlike(word);
        return at >= 0 ? values[at] : throw new CgmDataException($"'{word}' is none of {List()}");
    }

    private int FindAlike(string word)
    {
        const int minLength = 3;
        bool IsAlike(string one) => Math.Min(one.Length, word.Length) >= minLength
            && (one.StartsWith(word, StringComparison.OrdinalIgnoreCase)
                || word.StartsWith(one, StringComparison.OrdinalIgnoreCase));
        int first = Array.FindIndex(keywords, IsAlike);
        return first >= 0 && Array.FindLastIndex(keywords, IsAlike) == first ? first : -1;
    }

    private string List() => string.Join(", ", keywords);
}
