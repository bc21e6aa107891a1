using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

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
    [CadColor(62)]
    public short FillColorId { get; set; } = 256;

    /// <summary>Gets or sets the angle of the start, in degrees. Group code 51.</summary>
    [CadAngle(51)]
    public double StartAngle { get; set; } = 90;

    /// <summary>Gets or sets the angle of the end, in degrees. Group code 52.</summary>
    [CadAngle(52)]
    public double EndAngle { get; set; } = 90;

    /// <summary>Gets the lines of the style. The list is live.</summary>
    public IList<CadMLineStyleElement> Elements { get; } = new CheckedList<CadMLineStyleElement>("elements");

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 71:
                break;
            case 49:
                Elements.Add(new CadMLineStyleElement { Offset = reader.GetDouble() });
                break;
            case 62 when Elements.Count > 0:
                Elements[^1].ColorId = reader.GetShort();
                break;
            case 420 when Elements.Count > 0:
                Elements[^1].ColorValue = reader.GetInt();
                break;
            case 6 when Elements.Count > 0:
                Elements[^1].LineTypeName = reader.GetString();
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        int count = fields.Count(71, Elements.Count);
        for (int i = 0; i < count; i++)
        {
            CadMLineStyleElement element = fields.Item(Elements, i);
            element.Offset = fields.Double(49, element.Offset);
            element.ColorId = fields.Color(62, element.ColorId);
            if (fields.Includes(2004, element.ColorValue >= 0))
            {
                element.ColorValue = fields.Int32(420, element.ColorValue);
            }

            element.LineTypeName = fields.Name(6, SymbolTable.LineType, element.LineTypeName);
        }
    }
}
