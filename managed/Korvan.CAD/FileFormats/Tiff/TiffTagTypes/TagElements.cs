using System.Numerics;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>The types of values that tags have (TIFF 6.0, section 2).</summary>
internal static class TagElements
{
    internal static readonly TagElement<byte> Byte =
        new(1, static (r, at) => r.ReadByte(at), static (w, v) => w.WriteByte(v), static v => v);

    internal static readonly TagElement<int> SByte =
        new(1, static (r, at) => (sbyte)r.ReadByte(at), static (w, v) => w.WriteByte(unchecked((byte)v)), static v => v)
        {
            Verify = static values => InRange(values, sbyte.MinValue, sbyte.MaxValue),
        };

    internal static readonly TagElement<int> Short =
        new(2, static (r, at) => r.ReadUShort(at), static (w, v) => w.WriteUShort(v), static v => v)
        {
            Verify = static values => InRange(values, 0, ushort.MaxValue),
        };

    internal static readonly TagElement<int> SShort =
        new(2, static (r, at) => r.ReadSShort(at), static (w, v) => w.WriteSShort(v), static v => v)
        {
            Verify = static values => InRange(values, short.MinValue, short.MaxValue),
        };

    internal static readonly TagElement<long> Long =
        new(4, static (r, at) => r.ReadULong(at), static (w, v) => w.WriteULong(v), static v => v)
        {
            Verify = static values => InRange(values, 0, uint.MaxValue),
        };

    internal static readonly TagElement<int> SLong =
        new(4, static (r, at) => r.ReadSLong(at), static (w, v) => w.WriteSLong(v), static v => v);

    internal static readonly TagElement<float> Float =
        new(4, static (r, at) => r.ReadFloat(at), static (w, v) => w.WriteFloat(v), static v => v);

    internal static readonly TagElement<double> Double =
        new(8, static (r, at) => r.ReadDouble(at), static (w, v) => w.WriteDouble(v), static v => v);

    internal static readonly TagElement<TiffRational> Rational =
        new(8, static (r, at) => r.ReadRational(at), static (w, v) => w.WriteRational(v), static v => v.Value)
        {
            Verify = static values => Binding.Verify.NoneIsNull(values),
        };

    internal static readonly TagElement<TiffSRational> SRational =
        new(8, static (r, at) => r.ReadSRational(at), static (w, v) => w.WriteSRational(v), static v => v.Value)
        {
            Verify = static values => Binding.Verify.NoneIsNull(values),
        };

    private static void InRange<T>(T[] values, T low, T high)
        where T : INumber<T>
    {
        foreach (T value in values)
        {
            Verify.InRange(value, low, high, nameof(values));
        }
    }
}
