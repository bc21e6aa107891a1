using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The states of a dynamic block, each of which shows some of its entities.</summary>
[CadSequence]
[CadObject("BLOCKVISIBILITYPARAMETER", Subclass = "AcDbBlockVisibilityParameter")]
[CadBits(
    "base", "B IsInitialized", "T Label", "T Description", "B HistoryFlags", "H[BL] EntityHandles",
    "Part[BL] StateList")]
public partial class CadBlockVisibilityParameter : CadBlock1PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockVisibilityParameter()
    {
    }

    /// <summary>Gets or sets whether the states were set up. Group code 281.</summary>
    [CadBool(281)]
    public bool IsInitialized { get; set; } = true;

    /// <summary>Gets or sets the name of the parameter. Group code 301.</summary>
    [CadString(301)]
    public string Label { get; set; } = "";

    /// <summary>Gets or sets the description of the parameter. Group code 302.</summary>
    [CadString(302)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets whether the visibility is part of the evaluation: 0 no, 1 yes. Group code 91.</summary>
    [CadInt(91)]
    public int HistoryFlags { get; set; }

    /// <summary>Gets the handles of the entities that states show or hide, in hexadecimal. The list is live. Group code
    /// 331.</summary>
    [CadList(331, Count = 93)]
    public List<string> EntityHandles { get; } = [];

    /// <summary>Gets the states. The list is live. Group code 92.</summary>
    [CadRepeated(303, Count = 92)]
    internal IList<VisibilityState> StateList { get; } = new CheckedList<VisibilityState>("state_list");

    /// <summary>Gets the names of the states. Group code 303.</summary>
    /// <returns>The names, the first being that of a new block reference.</returns>
    public string[] GetStateNames() => [.. StateList.Select(static state => state.Name)];

    /// <summary>Gets the entities that a state shows. Group code 332.</summary>
    /// <param name="state">The name of the state.</param>
    /// <returns>Handles in hexadecimal; none where there is no such state.</returns>
    public string[] GetVisibleEntities(string state)
    {
        Verify.NotNull(state);
        return [.. StateList.FirstOrDefault(one => one.Name == state)?.EntityHandles ?? []];
    }
}
