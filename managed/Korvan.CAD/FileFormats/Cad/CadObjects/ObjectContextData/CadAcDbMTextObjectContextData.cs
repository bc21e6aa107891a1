using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;

/// <summary>The appearance of a multiline text at one annotation scale.</summary>
[CadSequence]
[CadObject("ACDB_MTEXTOBJECTCONTEXTDATA_CLASS", Subclass = "AcDbMTextObjectContextData")]
[CadBits(
    "base", "BL Attachment", "3BD XAxis", "3BD InsertionPoint", "BD Width", "BD Height", "BD ExtentsWidth",
    "BD ExtentsHeight", "BL ColumnType", "if ColumnType != 0: BL ColumnCount", "if ColumnType != 0: BD ColumnWidth",
    "if ColumnType != 0: BD ColumnGutter", "if ColumnType != 0: B IsAutoHeight", "if ColumnType != 0: B IsFlowReversed",
    "if ColumnType == 2 && !IsAutoHeight: ExchangeHeights()")]
public partial class CadAcDbMTextObjectContextData : CadAcDbObjectContextData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbMTextObjectContextData()
    {
    }

    /// <summary>Gets or sets the point of the text at its position: 1 top left to 9 bottom right. Group code
    /// 70.</summary>
    [CadShort(70)]
    public short Attachment { get; set; } = 1;

    /// <summary>Gets or sets the direction of the lines. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint XAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the position, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the width that lines are broken at, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double Width { get; set; }

    /// <summary>Gets or sets the height that is reserved, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    public double Height { get; set; }

    /// <summary>Gets or sets the width of the text, in drawing units. Group code 42.</summary>
    [CadDouble(42)]
    public double ExtentsWidth { get; set; }

    /// <summary>Gets or sets the height of the text, in drawing units. Group code 43.</summary>
    [CadDouble(43)]
    public double ExtentsHeight { get; set; }

    /// <summary>Gets or sets the columns: 0 none, 1 static, 2 dynamic. Group code 71.</summary>
    [CadInt(71)]
    public int ColumnType { get; set; }

    /// <summary>Gets or sets the number of columns. Group code 72.</summary>
    [CadInt(72, Optional = true)]
    [CadWhen("ColumnType != 0")]
    public int ColumnCount { get; set; }

    /// <summary>Gets or sets the width of a column, in drawing units. Group code 44.</summary>
    [CadDouble(44, Optional = true)]
    [CadWhen("ColumnType != 0")]
    public double ColumnWidth { get; set; }

    /// <summary>Gets or sets the gap between columns, in drawing units. Group code 45.</summary>
    [CadDouble(45, Optional = true)]
    [CadWhen("ColumnType != 0")]
    public double ColumnGutter { get; set; }

    /// <summary>Gets or sets whether the height of columns follows from the text. Group code 73.</summary>
    [CadBool(73, Optional = true)]
    [CadWhen("ColumnType != 0")]
    public bool IsAutoHeight { get; set; }

    /// <summary>Gets or sets whether columns run from right to left. Group code 74.</summary>
    [CadBool(74, Optional = true)]
    [CadWhen("ColumnType != 0")]
    public bool IsFlowReversed { get; set; }

    /// <summary>Gets the heights of the columns, in drawing units. The list is live. Group code 46.</summary>
    [CadList(46)]
    [CadWhen("ColumnType != 0")]
    public List<double> ColumnHeights { get; } = [];

    private void ExchangeHeights(BitExchange fields)
    {
        int count = fields.Verify(ColumnCount);
        fields.Resize(ColumnHeights, count);
        for (int i = 0; i < count; i++)
        {
            double height = fields.BitDouble(i < ColumnHeights.Count ? ColumnHeights[i] : 0);
            if (fields.IsReading)
            {
                ColumnHeights[i] = height;
            }
        }
    }
}
