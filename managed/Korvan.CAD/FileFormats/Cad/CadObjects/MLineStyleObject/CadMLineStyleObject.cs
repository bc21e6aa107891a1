using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;

/// <summary>A style of multilines.</summary>
[CadObject("MLINESTYLE", Subclass = "AcDbMlineStyle")]
public partial class CadMLineStyleObject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMLineStyleObject()
    {
    }

    /// <summary>Gets or sets the name. Group code 2.</summary>
    [CadString(2)]
    public string StyleName { get; set; } = "";

    /// <summary>Gets or sets bits: 1 filled, 2 mitres shown, 16 square, 64 round and 256 inner arcs at the start,
    /// 512, 1024 and 2048 at the end. Group code 70.</summary>
    [CadShort(70)]
    public short Flags { get; set; }

    /// <summary>Gets or sets the description. Group code 3.</summary>
    [CadString(3)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the number of the fill's colour. Group code 62.</summary>
    [CadShort(62)]
    public short FillColorId { get; set; } = 256;

    /// <summary>Gets or sets the angle of the start, in degrees. Group code 51.</summary>
    [CadDouble(51)]
    public double StartAngle { get; set; } = 90;

    /// <summary>Gets or sets the angle of the end, in degrees. Group code 52.</summary>
    [CadDouble(52)]
    public double EndAngle { get; set; } = 90;

    /// <summary>Gets the lines of the style. The list is live.</summary>
    public IList<CadMLineStyleElement> Elements { get; } = new CheckedList<CadMLineStyleElement>("elements");

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 71:
                break;
            case 49:
                Elements.Add(new CadMLineStyleElement { Offset = tags.GetDouble() });
                break;
            case 62 when Elements.Count > 0:
                Elements[^1].ColorId = tags.GetShort();
                break;
            case 420 when Elements.Count > 0:
                Elements[^1].ColorValue = tags.GetInt();
                break;
            case 6 when Elements.Count > 0:
                Elements[^1].LineTypeName = tags.GetString();
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        writer.Write(71, Elements.Count);
        foreach (CadMLineStyleElement element in Elements)
        {
            writer.Write(49, element.Offset);
            writer.Write(62, element.ColorId);
            if (writer.Release >= 2004 && element.ColorValue >= 0)
            {
                writer.Write(420, element.ColorValue);
            }

            writer.Write(6, element.LineTypeName);
        }
    }
}
