using System;
using System.Buffers;
using System.Buffers.Text;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>
/// Reads the tags of an interchange file, text or binary, in blocks. A tag is a group code and a value; the value stays
/// a slice of the block until it is asked for in one of its types.
/// </summary>
internal sealed partial class DxfTagReader : FieldReader
{
    private const int TagsPerCheck = 256; // a power of two

    private readonly SourceWindow _source;
    private readonly BinaryLayout _binary;
    private byte[] _data;
    private int _end;
    private int _position;
    private int _start;
    private int _length;
    private int _line;
    private int _count;
    private int _tagStart;
    private bool _unread;
    private bool _ended;

    internal DxfTagReader(SourceWindow source)
    {
        _source = source;
        _data = source.TakeStart(out _end);
        ReadOnlySpan<byte> start = _data.AsSpan(0, _end);
        _binary = BinaryTags.Detect(start);
        _position = _binary == BinaryLayout.None ? SkipByteOrderMark(start) : BinaryTags.Sentinel.Length;
    }

    /// <summary>Gets or sets the handle of the object that is being read; 0 where none was read yet.</summary>
    internal ulong CurrentHandle { get; set; }

    /// <summary>Gets or sets what is told of values that were repaired; without it none is.</summary>
    internal Action<LoadDefect>? Repaired { get; set; }

    /// <summary>Gets whether the file is binary.</summary>
    internal bool IsBinary => _binary != BinaryLayout.None;

    /// <summary>Gets how many bytes follow the current tag.</summary>
    internal int Remaining => _source.Length - _base - _position;

    /// <summary>Gets the number of the line that the current tag begins on, from 1.</summary>
    internal int Line => _line;

    /// <summary>Gets the bytes of the current value.</summary>
    internal ReadOnlySpan<byte> Value => _data.AsSpan(_start, _length);

    /// <summary>Goes on to the next tag; comments are passed over.</summary>
    /// <returns>Whether there is one.</returns>
    internal override bool Next()
    {
        if (_unread)
        {
            _unread = false;
            return true;
        }

        if ((++_count & (TagsPerCheck - 1)) == 0)
        {
            Budget.Check();
        }

        do
        {
            if (!(IsBinary ? NextBinary() : NextText()))
            {
                _ended = true;
                return false;
            }
        }
        while (Code == 999);
        return true;
    }

    /// <summary>Makes <see cref="Next"/> give the current tag again; after the last tag there is none to give.
    /// </summary>
    internal override void Unread() => _unread = !_ended;

    internal bool ValueIs(ReadOnlySpan<byte> text) => Trimmed().SequenceEqual(text);

    /// <summary>Looks for a code in the rest of the current object without leaving the position.</summary>
    /// <returns>Its value as an integer, or nothing.</returns>
    internal int? Peek(int code)
    {
        int? found = null;
        LookAhead(() => (found = Code == code ? GetInt() : null) is null);
        return found;
    }

    /// <summary>Determines whether the rest of the current object has the marker of a subclass.</summary>
    internal bool HasMarker(string name)
    {
        const int marker = 100;
        bool found = false;
        LookAhead(() => !(found = Code == marker && GetName() == name));
        return found;
    }

    /// <summary>Goes over the rest of the current object and comes back.</summary>
    /// <param name="go">What is done at each tag; tells whether to go on.</param>
    internal void LookAhead(Func<bool> go)
    {
        (int position, int start, int length, int line, int current) =
            (_base + _position, _base + _start, _length, _line, Code);
        (int tag, int? outer, bool unread, bool ended) = (_base + _tagStart, _kept, _unread, _ended);
        _kept ??= tag;
        try
        {
            while (Next() && Code != 0 && go())
            {
            }
        }
        finally
        {
            _kept = outer;
        }

        (_position, _start, _length, _line, Code) = (position - _base, start - _base, length, line, current);
        (_tagStart, _unread, _ended) = (tag - _base, unread, ended);
    }

    internal override double GetDouble()
    {
        double value;
        if (IsBinary)
        {
            value = BinaryTags.ToDouble(Code, Value);
        }
        else if (!FastDouble.TryParse(Trimmed(), out value) && !TryRepair(LoadDefectCode.BadNumber, out value))
        {
            throw NotA(LoadDefectCode.BadNumber, "a number");
        }

        return double.IsFinite(value) ? value : throw Fail(
            LoadDefectCode.NotFinite, $"group code {Code} has the value {ValueText()}; a finite number was expected");
    }

    internal override double GetAngle() => GetDouble();

    // Some programs write colours and flags as unsigned integers.
    internal override int GetInt()
    {
        long value = GetLong();
        return value is >= int.MinValue and <= uint.MaxValue ? unchecked((int)value) : throw TooLarge(32);
    }

    internal override short GetShort()
    {
        long value = GetLong();
        return value is >= short.MinValue and <= ushort.MaxValue ? unchecked((short)value) : throw TooLarge(16);
    }

    internal override long GetLong()
    {
        if (IsBinary)
        {
            return BinaryTags.ToLong(Code, Value);
        }

        ReadOnlySpan<byte> text = Trimmed();
        if (Utf8Parser.TryParse(text, out long value, out int used) && used == text.Length)
        {
            return value;
        }

        // Some programs write integers with a fraction of zero or a sign.
        return (FastDouble.TryParse(text, out double number) || TryRepair(LoadDefectCode.BadInteger, out number))
            && Math.Abs(number) < 9e18 && number == Math.Floor(number)
            ? (long)number
            : throw NotA(LoadDefectCode.BadInteger, "an integer");
    }

    /// <summary>Reads how many parts follow; a count that the rest of the file cannot hold is damage.</summary>
    internal override int GetCount()
    {
        const int smallestTag = 4;
        long count = GetLong();
        return count >= 0 && count <= (Remaining / (IsBinary ? 2 : smallestTag)) + 1
            ? (int)count
            : throw Fail(
                LoadDefectCode.CountTooLarge,
                $"group code {Code} announces {count} parts, but only {Remaining} bytes follow");
    }

    internal override ulong GetHandle()
    {
        ReadOnlySpan<byte> text = Trimmed();
        if (Utf8Parser.TryParse(text, out ulong value, out int used, 'X') && used == text.Length)
        {
            return value;
        }

        return text.IsEmpty ? 0UL : throw Fail(
            LoadDefectCode.BadHandle,
            $"group code {Code} has the value '{Shortened(ValueText())}'; a handle, which is a hexadecimal number, was "
                + "expected");
    }

    internal override string GetHandleText() => GetString();

    internal override ImageLoadException BadValue(string cause) => Fail(LoadDefectCode.BadValue, cause);

    /// <summary>Appends the bytes of the current tag, and of those of its code that follow: one after the other would
    /// copy what is there as often as there are tags.</summary>
    internal override byte[] AppendBinary(byte[] before)
    {
        ArrayBufferWriter<byte> bytes = new(Math.Max(before.Length + Value.Length, 1));
        bytes.Write(before);
        int code = Code;
        do
        {
            AppendChunk(bytes);
        }
        while (Next() && Code == code);
        Unread();
        return bytes.WrittenSpan.ToArray();
    }

    private void AppendChunk(ArrayBufferWriter<byte> bytes)
    {
        if (BinaryTags.HasBinaryValue(Code) && IsBinary)
        {
            bytes.Write(Value);
            return;
        }

        ReadOnlySpan<byte> digits = Trimmed();
        Span<byte> room = bytes.GetSpan((digits.Length / 2) + 1);
        if (Convert.FromHexString(digits, room, out _, out int written) != OperationStatus.Done)
        {
            throw Fail(
                LoadDefectCode.BadBinary,
                $"group code {Code} holds bytes that are not written in pairs of hexadecimal digits");
        }

        bytes.Advance(written);
    }

    /// <summary>Returns the current tag as it is in the file.</summary>
    internal override CadCodeValue ToCodeValue() => GroupCodes.TypeOf(Code) == CadGroupCodeTypes.Binary
        ? new CadBinaryCodeValue(Code, ValueText()) : new CadCodeValue(Code, ValueText());

    /// <summary>Describes damage at the current tag.</summary>
    internal ImageLoadException Fail(LoadDefectCode code, string cause) => new(Defect(code, cause));

    private LoadDefect Defect(LoadDefectCode code, string cause)
    {
        string record = CurrentHandle == 0 ? "" : $"handle {CurrentHandle.ToString("X", CultureInfo.InvariantCulture)}";
        LoadPlace place = IsBinary
            ? new LoadPlace(_source.Name, Record: record, Offset: TagOffset)
            : new LoadPlace(_source.Name, _line, record);
        return new LoadDefect(code, place, cause);
    }

    private static int SkipByteOrderMark(ReadOnlySpan<byte> data)
    {
        return data.StartsWith("\uFEFF"u8) ? 3 : 0;
    }

    private bool NextText()
    {
        _tagStart = _position;
        if (IsAtEnd())
        {
            return false;
        }

        _line += _line == 0 ? 1 : 2;
        (int start, int length) = TakeLine();
        if (!TryParseCode(_data.AsSpan(start, length), out int code))
        {
            return EndOrBadCode(start, length);
        }

        Code = code;
        if (IsAtEnd())
        {
            throw Fail(
                LoadDefectCode.EndsWithinTag, $"the file ends after group code {code}; its value was expected");
        }

        (_start, _length) = TakeLine();
        return true;
    }

    private bool EndOrBadCode(int start, int length)
    {
        (_start, _length) = (start, Math.Min(length, 40));
        if (_data.AsSpan(start, length).Trim(" \t\0\u001a"u8).IsEmpty && HasOnlyBlanks())
        {
            return false;
        }

        throw Fail(
            LoadDefectCode.BadGroupCode, $"'{Shortened(ValueText())}' is no group code; an integer was expected");
    }

    private (int Start, int Length) TakeLine()
    {
        int length = _data.AsSpan(_position, _end - _position).IndexOfAny((byte)'\n', (byte)'\r');
        int start = _position;
        int end = start + length;
        if (length < 0 || (_data[end] == '\r' && end + 1 == _end))
        {
            return TakeCutLine();
        }

        bool pair = _data[end] == '\r' && _data[end + 1] == '\n';
        _position = end + (pair ? 2 : 1);
        return (start, length);
    }

    private static bool TryParseCode(ReadOnlySpan<byte> line, out int code)
    {
        code = 0;
        int index = 0;
        while (index < line.Length && line[index] is (byte)' ' or (byte)'\t')
        {
            index++;
        }

        bool negative = index < line.Length && line[index] == '-';
        index += negative ? 1 : 0;
        int first = index;
        while (index < line.Length && index - first < 6 && (uint)(line[index] - '0') <= 9)
        {
            code = (code * 10) + (line[index++] - '0');
        }

        code = negative ? -code : code;
        return index > first && line[index..].Trim(" \t"u8).IsEmpty;
    }

    private bool NextBinary()
    {
        _tagStart = _position;
        if (IsAtEnd())
        {
            return false;
        }

        int code;
        while (!BinaryTags.TryTake(_data.AsSpan(0, _end), _binary, ref _position, out code, out _start, out _length))
        {
            _position = _tagStart;
            if (!TryReadMore())
            {
                _position = _end;
                throw Fail(LoadDefectCode.EndsWithinTag, "the file ends within a tag");
            }
        }

        Code = code;
        return true;
    }

    private ReadOnlySpan<byte> Trimmed()
    {
        ReadOnlySpan<byte> text = Value;
        return text.Length > 0 && (text[0] <= ' ' || text[^1] <= ' ') ? text.Trim(" \t\0"u8) : text;
    }

    private ImageLoadException TooLarge(int bits)
    {
        return Fail(
            LoadDefectCode.OutOfRange,
            $"group code {Code} has the value '{Shortened(ValueText())}'; an integer of {bits} bits was expected");
    }

    private ImageLoadException NotA(LoadDefectCode defect, string kind)
    {
        return Fail(defect, $"group code {Code} has the value '{Shortened(ValueText())}'; {kind} was expected");
    }

    private static string Shortened(string text) => text.Length > 60 ? text[..60] + "…" : text;
}
