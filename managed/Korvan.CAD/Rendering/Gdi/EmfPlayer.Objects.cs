using System;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Gdi;

/// <content>Pens, brushes and fonts.</content>
internal sealed partial class EmfPlayer
{
    private const int MaxObjects = 65_536;

    private bool SetObject(int type, in RecordData record)
    {
        int handle = record.Int32(8);
        switch (type)
        {
            case 37: Select((uint)handle); break;
            case 38: Keep(handle, Pen(record)); break;
            case 39: Keep(handle, Brush(record)); break;
            case 40: _objects.Remove(handle); break;
            case 82: Keep(handle, Font(record)); break;
            case 93 or 94: Keep(handle, new GdiBrush(Mixed(State.TextColor, State.Background))); break;
            case 95: Keep(handle, ExtendedPen(record)); break;
            default: return false;
        }

        return true;
    }

    private void Keep(int handle, object made)
    {
        if (_objects.Count < MaxObjects)
        {
            _objects[handle] = made;
        }
    }

    private static GdiPen Pen(in RecordData record) =>
        new(record.Color(24), Math.Abs((double)record.Int32(16)), (GdiLine)(record.Int32(12) & 0xf))
        {
            Ends = GdiNumbers.EndsOf(record.Int32(12)),
        };

    private static GdiPen ExtendedPen(in RecordData record)
    {
        const int geometric = 0x10000, lengthsAt = 52;
        int style = record.Int32(28);
        double width = (style & geometric) != 0 ? (uint)record.Int32(32) : 0;
        int count = Math.Clamp(record.Int32(48), 0, Math.Max(0, record.Length - lengthsAt) / 4);
        var lengths = new double[Math.Min(count, 16)];
        for (int i = 0; i < lengths.Length; i++)
        {
            lengths[i] = (uint)record.Int32(lengthsAt + (4 * i));
        }

        return new GdiPen(record.Color(40), width, (GdiLine)(style & 0xf))
        {
            Ends = GdiNumbers.EndsOf(style),
            Lengths = lengths,
        };
    }

    private static GdiBrush Brush(in RecordData record)
    {
        const int solid = 0, none = 1, hatched = 2;
        return record.Int32(12) switch
        {
            solid => new GdiBrush(record.Color(16)),
            none => new GdiBrush(null),
            hatched => new GdiBrush(record.Color(16), Math.Clamp(record.Int32(20), 0, 5)),
            _ => new GdiBrush(record.Color(16)),
        };
    }

    private static GdiFont Font(in RecordData record)
    {
        const int at = 12, faceAt = at + 28, faceLength = 64, bold = 600;
        string face = Encoding.Unicode.GetString(record.Slice(faceAt, faceLength));
        FontSpec spec = FontTable.FromFamily(
            GdiNumbers.UpToZero(face), record.Int32(at + 16) >= bold, record.Byte(at + 20) != 0);
        return new GdiFont(spec, record.Int32(at))
        {
            Angle = record.Int32(at + 8) / 10.0 * Math.PI / 180,
            IsUnderlined = record.Byte(at + 21) != 0,
            IsStruck = record.Byte(at + 22) != 0,
            Charset = record.Byte(at + 23),
        };
    }

    /// <summary>The colour of a pattern from far away.</summary>
    private static Rgba Mixed(Rgba a, Rgba b) =>
        new((byte)((a.R + b.R) / 2), (byte)((a.G + b.G) / 2), (byte)((a.B + b.B) / 2));
}
