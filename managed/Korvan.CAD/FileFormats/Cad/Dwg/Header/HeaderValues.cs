using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>The values of the header section by the names of their fields.</summary>
internal sealed class HeaderValues
{
    private readonly Dictionary<string, HeaderValue> _values = [];

    internal IEnumerable<string> Names => _values.Keys;

    internal bool Contains(string name) => _values.ContainsKey(name);

    /// <summary>Returns the value of a field; zero, empty or no object where there is none.</summary>
    internal HeaderValue this[string name]
    {
        get => _values.GetValueOrDefault(name);
        set => _values[name] = value;
    }

    /// <summary>Returns the object that a field refers to; 0 for none.</summary>
    internal ulong HandleOf(string name) => this[name].Handle;

    /// <summary>Exchanges all fields of a release with its section.</summary>
    /// <exception cref="DwgFault">The section is damaged, or a value does not fit its field.</exception>
    internal void Exchange(HeaderStream stream)
    {
        foreach (HeaderField field in HeaderFields.All)
        {
            if (stream.Release < field.Since || stream.Release > field.Until || IsLeftOut(field))
            {
                continue;
            }

            HeaderValue before = _values.TryGetValue(field.Name, out HeaderValue known)
                ? known : new HeaderValue(field.Default);
            try
            {
                _values[field.Name] = Exchange(stream, field, before);
            }
            catch (DwgFault fault)
            {
                throw new DwgFault(fault.Position, $"{field.Name}: {fault.Message}");
            }
        }
    }

    // The plot style of new entities is stated only where it is a particular one.
    private bool IsLeftOut(HeaderField field) => field.Name == "$CEPSNID" && this["$CEPSNTYPE"].X != 3;

    private static HeaderValue Exchange(HeaderStream stream, HeaderField field, HeaderValue value)
    {
        switch (field.Coding)
        {
            case HeaderCoding.Bit:
                return new HeaderValue(stream.Bit(value.X != 0) ? 1 : 0);
            case HeaderCoding.BitShort:
                return new HeaderValue((short)stream.BitShort((int)value.X));
            case HeaderCoding.BitLong or HeaderCoding.Flags:
                return new HeaderValue(stream.BitLong((int)value.X));
            case HeaderCoding.BitLongLong:
                return new HeaderValue(stream.BitLongLong((ulong)value.X));
            case HeaderCoding.RawByte:
                return new HeaderValue(stream.RawByte((int)value.X));
            case HeaderCoding.BitDouble:
                return new HeaderValue(stream.BitDouble(value.X));
            case HeaderCoding.Point:
                return new HeaderValue(
                    stream.BitDouble(value.X), stream.BitDouble(value.Y), stream.BitDouble(value.Z));
            case HeaderCoding.FlatPoint:
                return new HeaderValue(stream.RawDouble(value.X), stream.RawDouble(value.Y));
            case HeaderCoding.Text:
                return new HeaderValue(0) { Text = stream.Text(value.Text ?? "") };
            case HeaderCoding.Time:
                return new HeaderValue(stream.BitLong((int)value.X), stream.BitLong((int)value.Y));
            case HeaderCoding.Color:
                return ExchangeColor(stream, value);
            case HeaderCoding.OwnHandle:
                return new HeaderValue(0) { Handle = stream.OwnHandle(value.Handle) };
            default:
                return new HeaderValue(0) { Handle = stream.Handle(field.HandleCode, value.Handle) };
        }
    }

    private static HeaderValue ExchangeColor(HeaderStream stream, HeaderValue value)
    {
        const int trueColors = 2004;
        if (stream.Release < trueColors)
        {
            return new HeaderValue(stream.BitShort((int)value.X));
        }

        int index = stream.BitShort(0);
        uint packed = (uint)stream.BitLong((int)PackedColor.Pack((int)value.X, -1));
        int names = stream.RawByte(0);
        _ = (names & 1) != 0 ? stream.Text("") : "";
        _ = (names & 2) != 0 ? stream.Text("") : "";
        return new HeaderValue(PackedColor.Unpack(index, packed).Index);
    }
}

/// <summary>A value of the header section: up to three numbers, a string or a handle.</summary>
internal readonly record struct HeaderValue(double X, double Y = 0, double Z = 0)
{
    internal string? Text { get; init; }

    internal ulong Handle { get; init; }
}
