using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat polyline with widths and arcs.</summary>
[CadObject("LWPOLYLINE", Subclass = "AcDbPolyline", HandWritten = true)]
[CadBits("ExchangePolyline()")]
public partial class CadLwPolyline : CadExtrudedEntityBase
{
    // The flags as drawing databases have them.
    private const int PackedClosed = 512;
    private const int PackedGeneration = 256;

    /// <summary>Creates the object with its defaults.</summary>
    public CadLwPolyline()
    {
    }

    /// <summary>Gets or sets properties of the polyline. Group code 70.</summary>
    [CadShort(70)]
    public CadLwPolylineFlag Flag { get; set; }

    /// <summary>Gets or sets the width of all segments; 0 where the vertices tell widths. Group code 43.</summary>
    [CadDouble(43)]
    public double ConstantWidth { get; set; }

    /// <summary>Gets or sets the Z of all vertices, in object coordinates. Group code 38.</summary>
    [CadDouble(38)]
    public double Elevation { get; set; }

    /// <summary>Gets the vertices, in object coordinates. The list is live. Group codes 10, 20.</summary>
    public IList<Cad2DPoint> Coordinates { get; } = new CheckedList<Cad2DPoint>("coordinates");

    /// <summary>Gets the bulges of the segments that begin at the vertices: the tangent of a quarter of the arc's
    /// angle, 0 for a straight segment, negative clockwise. Vertices beyond the end of the list have 0. The list is
    /// live. Group code 42.</summary>
    public List<double> Bulges { get; } = [];

    /// <summary>Gets the start widths of the segments; vertices beyond the end of the list have <see
    /// cref="ConstantWidth"/>. The list is live. Group code 40.</summary>
    public List<double> StartWidths { get; } = [];

    /// <summary>Gets the end widths of the segments; vertices beyond the end of the list have <see
    /// cref="ConstantWidth"/>. The list is live. Group code 41.</summary>
    public List<double> EndWidths { get; } = [];

    /// <summary>Gets whether the last vertex is joined to the first.</summary>
    public bool IsClosed => (Flag & CadLwPolylineFlag.Closed) != 0;

    internal double BulgeAt(int index) => index < Bulges.Count ? Bulges[index] : 0;

    internal double StartWidthAt(int index) => index < StartWidths.Count ? StartWidths[index] : ConstantWidth;

    internal double EndWidthAt(int index) => index < EndWidths.Count ? EndWidths[index] : ConstantWidth;

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 90:
                Coordinates.EnsureCapacity(reader.GetCount());
                break;
            case 10:
                Coordinates.Add(new Cad2DPoint(reader.GetDouble(), 0));
                break;
            case 20 when Coordinates.Count > 0:
                Coordinates[^1].Y = reader.GetDouble();
                break;
            case 40 when Coordinates.Count > 0:
                SetLast(StartWidths, reader.GetDouble(), ConstantWidth);
                break;
            case 41 when Coordinates.Count > 0:
                SetLast(EndWidths, reader.GetDouble(), ConstantWidth);
                break;
            case 42 when Coordinates.Count > 0:
                SetLast(Bulges, reader.GetDouble(), 0);
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        int count = fields.Count(90, Coordinates.Count);
        Flag = (CadLwPolylineFlag)fields.Enum(70, (int)Flag);
        bool ownWidths = fields.Includes(0, StartWidths.Count > 0 || EndWidths.Count > 0);
        if (fields.Includes(0, ConstantWidth != 0 || !ownWidths))
        {
            ConstantWidth = fields.Double(43, ConstantWidth);
        }

        if (fields.Includes(0, Elevation != 0))
        {
            Elevation = fields.Double(38, Elevation);
        }

        bool hasBulges = fields.Includes(0, Bulges.Count > 0);
        for (int i = 0; i < count; i++)
        {
            fields.Point(10, fields.Item(Coordinates, i));
            if (ownWidths)
            {
                fields.ItemAt(40, StartWidths, i, ConstantWidth);
                fields.ItemAt(41, EndWidths, i, ConstantWidth);
            }

            if (hasBulges)
            {
                fields.ItemAt(42, Bulges, i, 0);
            }
        }
    }

    private void SetLast(List<double> values, double value, double missing)
    {
        int index = Coordinates.Count - 1;
        if (index < values.Count)
        {
            values[index] = value;
            return;
        }

        // Most vertices have neither width nor bulge: the list begins with the first that has.
        if (value == missing && values.Count == 0)
        {
            return;
        }

        while (values.Count < index)
        {
            values.Add(missing);
        }

        values.Add(value);
    }

    // What is at its default is left out, as flags say.
    private void ExchangePolyline(BitExchange fields)
    {
        const int hasExtrusion = 1;
        const int hasThickness = 2;
        const int hasWidth = 4;
        const int hasElevation = 8;
        const int hasBulges = 16;
        const int hasWidths = 32;
        const int hasIdentifiers = 1024;
        int flags = fields.BitShort(PackFlags());
        ConstantWidth = (flags & hasWidth) != 0 ? fields.BitDouble(ConstantWidth) : 0;
        Elevation = (flags & hasElevation) != 0 ? fields.BitDouble(Elevation) : 0;
        Thickness = (flags & hasThickness) != 0 ? fields.BitDouble(Thickness) : 0;
        if ((flags & hasExtrusion) != 0)
        {
            fields.Point3(ExtrusionDirection);
        }

        int points = fields.CountLong(Coordinates.Count);
        int bulges = (flags & hasBulges) != 0 ? fields.CountLong(Bulges.Count) : 0;
        int identifiers = (flags & hasIdentifiers) != 0 ? fields.CountLong(0) : 0;
        int widths = (flags & hasWidths) != 0 ? fields.CountLong(points) : 0;
        ExchangePoints(fields, points);
        fields.Doubles(Bulges, bulges);
        for (int i = 0; i < identifiers; i++)
        {
            fields.BitLong(0);
        }

        ExchangeWidths(fields, widths);
        TakeFlags(fields, flags);
    }

    private int PackFlags() => (ExtrusionDirection.Is(0, 0, 1) ? 0 : 1) | (Thickness != 0 ? 2 : 0)
        | (ConstantWidth != 0 ? 4 : 0) | (Elevation != 0 ? 8 : 0) | (Bulges.Count > 0 ? 16 : 0)
        | (StartWidths.Count > 0 || EndWidths.Count > 0 ? 32 : 0) | (IsClosed ? PackedClosed : 0)
        | ((Flag & CadLwPolylineFlag.Plinegen) != 0 ? PackedGeneration : 0);

    private void TakeFlags(BitExchange fields, int flags)
    {
        if (fields.IsReading)
        {
            Flag = ((flags & PackedClosed) != 0 ? CadLwPolylineFlag.Closed : 0)
                | ((flags & PackedGeneration) != 0 ? CadLwPolylineFlag.Plinegen : 0);
        }
    }

    private void ExchangePoints(BitExchange fields, int count)
    {
        for (int i = 0; i < count; i++)
        {
            Cad2DPoint point = fields.Item(Coordinates, i);
            if (i == 0 || fields.Release < 2000)
            {
                fields.RawPoint2(point);
            }
            else
            {
                fields.PointAfter(point, Coordinates[i - 1]);
            }
        }
    }

    private void ExchangeWidths(BitExchange fields, int count)
    {
        if (fields.IsReading)
        {
            fields.Resize(StartWidths, count);
            fields.Resize(EndWidths, count);
        }

        for (int i = 0; i < count; i++)
        {
            double start = fields.BitDouble(StartWidthAt(i));
            double end = fields.BitDouble(EndWidthAt(i));
            if (fields.IsReading)
            {
                (StartWidths[i], EndWidths[i]) = (start, end);
            }
        }
    }
}
