using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat polyline with widths and arcs.</summary>
[CadObject("LWPOLYLINE", Subclass = "AcDbPolyline", HandWritten = true)]
public partial class CadLwPolyline : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLwPolyline()
    {
    }

    /// <summary>Gets or sets properties of the polyline. Group code 70.</summary>
    [CadShort(70)]
    public CadLwPolylineFlag Flag { get; set; }

    /// <summary>Gets or sets the width of all pieces; 0 where the vertices tell widths. Group code 43.</summary>
    [CadDouble(43)]
    public double ConstantWidth { get; set; }

    /// <summary>Gets or sets the Z of all vertices, in object coordinates. Group code 38.</summary>
    [CadDouble(38)]
    public double Elevation { get; set; }

    /// <summary>Gets the vertices, in object coordinates. The list is live. Group codes 10, 20.</summary>
    public IList<Cad2DPoint> Coordinates { get; } = new CheckedList<Cad2DPoint>("coordinates");

    /// <summary>Gets the bulges of the pieces that begin at the vertices: the tangent of a quarter of the arc's
    /// angle, 0 for a straight piece, negative clockwise. Vertices beyond the end of the list have 0. The list is
    /// live. Group code 42.</summary>
    public List<double> Bulges { get; } = [];

    /// <summary>Gets the start widths of the pieces; vertices beyond the end of the list have
    /// <see cref="ConstantWidth"/>. The list is live. Group code 40.</summary>
    public List<double> StartWidths { get; } = [];

    /// <summary>Gets the end widths of the pieces; vertices beyond the end of the list have
    /// <see cref="ConstantWidth"/>. The list is live. Group code 41.</summary>
    public List<double> EndWidths { get; } = [];

    /// <summary>Gets whether the last vertex is joined to the first.</summary>
    public bool IsClosed => (Flag & CadLwPolylineFlag.Closed) != 0;

    internal double BulgeAt(int index) => index < Bulges.Count ? Bulges[index] : 0;

    internal double StartWidthAt(int index) => index < StartWidths.Count ? StartWidths[index] : ConstantWidth;

    internal double EndWidthAt(int index) => index < EndWidths.Count ? EndWidths[index] : ConstantWidth;

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 90:
                Coordinates.EnsureCapacity(tags.GetCount());
                break;
            case 10:
                Coordinates.Add(new Cad2DPoint(tags.GetDouble(), 0));
                break;
            case 20 when Coordinates.Count > 0:
                Coordinates[^1].Y = tags.GetDouble();
                break;
            case 40 when Coordinates.Count > 0:
                SetLast(StartWidths, tags.GetDouble(), ConstantWidth);
                break;
            case 41 when Coordinates.Count > 0:
                SetLast(EndWidths, tags.GetDouble(), ConstantWidth);
                break;
            case 42 when Coordinates.Count > 0:
                SetLast(Bulges, tags.GetDouble(), 0);
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        writer.Write(90, Coordinates.Count);
        writer.Write(70, (int)Flag);
        bool ownWidths = StartWidths.Count > 0 || EndWidths.Count > 0;
        if (ConstantWidth != 0 || !ownWidths)
        {
            writer.Write(43, ConstantWidth);
        }

        if (Elevation != 0)
        {
            writer.Write(38, Elevation);
        }

        for (int i = 0; i < Coordinates.Count; i++)
        {
            writer.Write(10, Coordinates[i]);
            if (ownWidths)
            {
                writer.Write(40, StartWidthAt(i));
                writer.Write(41, EndWidthAt(i));
            }

            if (Bulges.Count > 0)
            {
                writer.Write(42, BulgeAt(i));
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
}
