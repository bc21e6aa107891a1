using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A named value of an associative action.</summary>
[CadSequence]
[CadBits("BL Version", "T Name", "BL Unit", "Part[BL] Inputs", "H ControlledDependency")]
internal sealed partial class AssocValue
{
    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the unit. Group code 90.</summary>
    [CadInt(90)]
    public int Unit { get; set; }

    /// <summary>Gets the expressions and what they depend on. The list is live. Group code 90.</summary>
    [CadRepeated(90, Count = 90)]
    public IList<AssocValueInput> Inputs { get; } = new CheckedList<AssocValueInput>("inputs");

    /// <summary>Gets or sets the handle of the dependency that the value controls. Group code 330.</summary>
    [CadHandle(330)]
    public string ControlledDependency { get; set; } = "0";
}
