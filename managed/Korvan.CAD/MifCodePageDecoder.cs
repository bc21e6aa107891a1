using System;
using System.Globalization;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.Encodings;

namespace Korvan.CAD;

/// <summary>Decodes sequences <c>\M+nXXXX</c>, which represent characters of double-byte code pages in the text of
/// drawings: n is the code page, XXXX are the two bytes in hexadecimal.</summary>
public class MifCodePageDecoder
{
    /// <summary>The number of characters in a sequence.</summary>
    internal const int SequenceLength = 8;

    private static readonly int[] Pages = [932, 950, 949, 1361, 936];

    /// <summary>Creates a decoder that uses the code page of each sequence.</summary>
    public MifCodePageDecoder()
        : this(MifCodePages.Undefined)
    {
    }

    /// <summary>Creates a decoder.</summary>
    /// <param name="codePage">The code page of all sequences, regardless of their digit;
    /// <see cref="MifCodePages.Undefined"/> for that of the digit.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public MifCodePageDecoder(MifCodePages codePage)
    {
        if (!Enum.IsDefined(codePage))
        {
            throw Verify.OutOfRange(nameof(codePage), codePage, "The code pages are 1 to 5.");
        }

        CodePage = codePage;
    }

    /// <summary>Gets the code page of all sequences.</summary>
    public MifCodePages CodePage { get; }

    /// <summary>Returns whether text may contain sequences.</summary>
    /// <param name="text">The text.</param>
    /// <returns>Whether the text may contain sequences.</returns>
    public static bool HasSequences(string text)
    {
        Verify.NotNull(text);
        return text.Contains("\\M+", StringComparison.Ordinal);
    }

    /// <summary>Replaces all complete sequences by their characters; incomplete ones are kept.</summary>
    /// <param name="text">The text.</param>
    public string Decode(string text)
    {
        Verify.NotNull(text);
        StringBuilder result = new(text.Length);
        int done = 0;
        for (int next = text.IndexOf("\\M+", StringComparison.Ordinal); next >= 0;
            next = text.IndexOf("\\M+", Math.Max(next + 1, done), StringComparison.Ordinal))
        {
            if (TryDecode(text.AsSpan(next), out string? characters))
            {
                result.Append(text, done, next - done).Append(characters);
                done = next + SequenceLength;
            }
        }

        return result.Append(text, done, text.Length - done).ToString();
    }

    /// <summary>Decodes the sequence at the start of a text, beginning with the digit of the code page.</summary>
    internal bool TryDecode(ReadOnlySpan<char> text, out string? characters)
    {
        characters = null;
        if (text.Length >= SequenceLength && text[3] is >= '1' and <= '5'
            && TryBytes(text[4..SequenceLength], out ushort pair))
        {
            MifCodePages page = CodePage == MifCodePages.Undefined ? (MifCodePages)(text[3] - '0') : CodePage;
            characters = Characters(page, pair);
        }

        return characters is not null;
    }

    internal static bool TryBytes(ReadOnlySpan<char> digits, out ushort pair)
    {
        return ushort.TryParse(digits, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out pair);
    }

    internal static string Characters(MifCodePages page, ushort pair)
    {
        return DwgCodePage.Get(Pages[(int)page - 1]).GetString([(byte)(pair >> 8), (byte)pair]);
    }
}
