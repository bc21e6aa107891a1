using System;
using System.Globalization;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD;

/// <summary>Reads sequences <c>\M+nXXXX</c>, which stand for letters of double-byte code pages in the texts of
/// drawings: n names the code page, XXXX are the two bytes in hexadecimal.</summary>
public class MifCodePageDecoder
{
    /// <summary>The letters of one sequence.</summary>
    internal const int SequenceLength = 8;

    private static readonly int[] Pages = [932, 950, 949, 1361, 936];

    /// <summary>Creates a decoder that takes the code page from each sequence.</summary>
    public MifCodePageDecoder()
        : this(MifCodePages.Undefined)
    {
    }

    /// <summary>Creates a decoder.</summary>
    /// <param name="codePage">The code page of all sequences, whatever their digit says;
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

    /// <summary>Tells whether a text may hold sequences.</summary>
    /// <param name="text">The text.</param>
    /// <returns>Whether a text may hold sequences.</returns>
    public static bool HasSequences(string text)
    {
        Verify.NotNull(text);
        return text.Contains("\\M+", StringComparison.Ordinal);
    }

    /// <summary>Replaces all whole sequences by their letters; what is no whole sequence stays.</summary>
    /// <param name="text">The text.</param>
    public string Decode(string text)
    {
        Verify.NotNull(text);
        StringBuilder result = new(text.Length);
        int done = 0;
        for (int next = text.IndexOf("\\M+", StringComparison.Ordinal); next >= 0;
            next = text.IndexOf("\\M+", Math.Max(next + 1, done), StringComparison.Ordinal))
        {
            if (TryDecode(text.AsSpan(next), out string? letters))
            {
                result.Append(text, done, next - done).Append(letters);
                done = next + SequenceLength;
            }
        }

        return result.Append(text, done, text.Length - done).ToString();
    }

    /// <summary>Reads the sequence that a text begins with, from the digit of the code page on.</summary>
    internal bool TryDecode(ReadOnlySpan<char> text, out string? letters)
    {
        letters = null;
        if (text.Length >= SequenceLength && text[3] is >= '1' and <= '5' && TryBytes(text[4..SequenceLength], out ushort pair))
        {
            letters = Letters(CodePage == MifCodePages.Undefined ? (MifCodePages)(text[3] - '0') : CodePage, pair);
        }

        return letters is not null;
    }

    internal static bool TryBytes(ReadOnlySpan<char> digits, out ushort pair)
    {
        return ushort.TryParse(digits, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out pair);
    }

    internal static string Letters(MifCodePages page, ushort pair)
    {
        return DwgCodePage.Get(Pages[(int)page - 1]).GetString([(byte)(pair >> 8), (byte)pair]);
    }
}
