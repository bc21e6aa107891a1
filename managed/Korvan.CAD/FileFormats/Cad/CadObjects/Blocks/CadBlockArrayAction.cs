using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that repeats entities of a dynamic block in columns and rows.</summary>
[CadSequence]
[CadObject("BLOCKARRAYACTION", Subclass = "AcDbBlockArrayAction")]
[CadBits(
    "base", "BL BaseId", "T BaseName", "BL EndId", "T EndName", "BL UpdatedBaseId", "T UpdatedBaseName",
    "BL UpdatedEndId", "T UpdatedEndName", "BD ColumnSpacing", "BD RowSpacing")]
internal sealed partial class CadBlockArrayAction : CadBlockAction
{
    /// <summary>Gets or sets the index of the node with the first point. Group code 92.</summary>
    [CadInt(92)]
    internal int BaseId { get; set; }

    /// <summary>Gets or sets the index of the node with the second point. Group code 93.</summary>
    [CadInt(93)]
    internal int EndId { get; set; }

    /// <summary>Gets or sets the index of the node with the changed first point. Group code 94.</summary>
    [CadInt(94)]
    internal int UpdatedBaseId { get; set; }

    /// <summary>Gets or sets the index of the node with the changed second point. Group code 95.</summary>
    [CadInt(95)]
    internal int UpdatedEndId { get; set; }

    /// <summary>Gets or sets the name of the first point. Group code 301.</summary>
    [CadString(301)]
    internal string BaseName { get; set; } = "";

    /// <summary>Gets or sets the name of the second point. Group code 302.</summary>
    [CadString(302)]
    internal string EndName { get; set; } = "";

    /// <summary>Gets or sets the name of the changed first point. Group code 303.</summary>
    [CadString(303)]
    internal string UpdatedBaseName { get; set; } = "";

    /// <summary>Gets or sets the name of the changed second point. Group code 304.</summary>
    [CadString(304)]
    internal string UpdatedEndName { get; set; } = "";

    /// <summary>Gets or sets the distance of columns. Group code 140.</summary>
    [CadDouble(140)]
    internal double ColumnSpacing { get; set; }

    /// <summary>Gets or sets the distance of rows. Group code 141.</summary>
    [CadDouble(141)]
    internal double RowSpacing { get; set; }
}
