using System;
using System.Globalization;
using System.Text;
using System.Text.Unicode;
using Korvan.CAD.Encodings;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <content>Strings: code pages, escapes, and one string for one name however often it is in the file.</content>
internal sealed partial class DxfTagReader
{
    private const int PoolSize = 1024;
    private const int LongestPooled = 40;

    private readonly (int Length, string Text)[] _pool = new (int, string)[PoolSize];
    private readonly byte[] _pooled = new byte[PoolSize * LongestPooled];

    private Encoding _encoding = new UTF8Encoding(false);

    /// <summary>Gets or sets the encoding of texts that are not plain ASCII.</summary>
    internal Encoding Encoding
    {
        get => _encoding;
        set
        {
            // Texts that were read before would be given again as they were.
            _encoding = value;
            Array.Clear(_pool);
        }
    }

    /// <summary>Gets or sets the encoding of texts in a drawing of UTF-8 that are not UTF-8.</summary>
    internal Encoding Fallback { get; set; } = DwgCodePage.Get(DwgCodePage.DefaultName);

    /// <summary>Gets or sets how sequences for single characters are read.</summary>
    internal TextEscapes Escapes { get; set; } = TextEscapes.Standard;

    /// <summary>Gives the value as a text.</summary>
    internal override string GetString()
    {
        if (IsBinary && !BinaryTags.IsText(Code))
        {
            return ValueText();
        }

        ReadOnlySpan<byte> bytes = Value;
        return bytes.Length <= LongestPooled ? Pooled(bytes) : Decode(bytes);
    }

    /// <summary>Gives the value as a name: without blanks at its ends.</summary>
    internal override string GetName()
    {
        ReadOnlySpan<byte> bytes = Value;
        if (bytes.Length > 0 && (bytes[0] == ' ' || bytes[^1] == ' '))
        {
            return GetString().Trim();
        }

        return GetString();
    }

    /// <summary>Gives the value as it would stand in a text file.</summary>
    internal string ValueText()
    {
        if (!IsBinary || BinaryTags.IsText(Code))
        {
            return IsBinary || Value.Length > LongestPooled ? Decode(Value) : Pooled(Value);
        }

        if (BinaryTags.HasBinaryValue(Code))
        {
            return Convert.ToHexString(Value);
        }

        return BinaryTags.IsDouble(Code)
            ? BinaryTags.ToDouble(Code, Value).ToString("R", CultureInfo.InvariantCulture)
            : BinaryTags.ToLong(Code, Value).ToString(CultureInfo.InvariantCulture);
    }

    private string Pooled(ReadOnlySpan<byte> bytes)
    {
        if (bytes.IsEmpty)
        {
            return "";
        }

        uint hash = 2166136261;
        foreach (byte value in bytes)
        {
            hash = (hash ^ value) * 16777619;
        }

        int index = (int)((hash ^ (hash >> 15)) % PoolSize);
        ref (int Length, string Text) entry = ref _pool[index];
        Span<byte> known = _pooled.AsSpan(index * LongestPooled, bytes.Length);
        if (entry.Length != bytes.Length || !known.SequenceEqual(bytes))
        {
            entry = (bytes.Length, Decode(bytes));
            bytes.CopyTo(known);
        }

        return entry.Text;
    }

    private string Decode(ReadOnlySpan<byte> bytes)
    {
        if (Ascii.IsValid(bytes) && !Escapes.MayHaveEscapes(bytes))
        {
            return Encoding.ASCII.GetString(bytes);
        }

        bool damaged = Encoding is UTF8Encoding && !Utf8.IsValid(bytes);
        return Escapes.Decode((damaged ? Fallback : Encoding).GetString(bytes));
    }
}
