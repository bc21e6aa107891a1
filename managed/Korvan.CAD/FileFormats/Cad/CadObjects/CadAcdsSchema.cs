using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A schema of the data section: the names and types of the values of its records.</summary>
[CadSequence]
[CadObject("ACDSSCHEMA")]
public partial class CadAcdsSchema : CadBaseAcds
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcdsSchema()
    {
    }

    /// <summary>Gets or sets the index of the schema, which records refer to. Group code 90.</summary>
    [CadInt(90)]
    public int Index { get; set; }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets the values of a record. The list is live. Group code 2.</summary>
    [CadRepeated(2)]
    internal IList<AcdsColumn> Columns { get; } = new CheckedList<AcdsColumn>("columns");

    /// <inheritdoc/>
    public override string Key => Name;

    /// <summary>Returns the names of the values of a record. Group code 2.</summary>
    /// <returns>The names in the order of the schema.</returns>
    public string[] GetColumnNames() => [.. Columns.Select(static column => column.Name)];
}
