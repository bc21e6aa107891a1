using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.PersSubentManager;

/// <summary>Names of faces, edges and vertices that stay the same when a solid changes.</summary>
[CadSequence]
[CadObject("ACDBPERSSUBENTMANAGER", Subclass = "AcDbPersSubentManager")]
[CadBits("BL Version", "BL FirstReserved", "BL SecondReserved", "BL StepCount", "BL SubentityCount", "BL[BL] Steps")]
public partial class CadAcDbPersSubentManager : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbPersSubentManager()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 2;

    /// <summary>Gets or sets a value that is always 0. Group code 90.</summary>
    [CadInt(90)]
    internal int FirstReserved { get; set; }

    /// <summary>Gets or sets a value that is always 2. Group code 90.</summary>
    [CadInt(90)]
    internal int SecondReserved { get; set; } = 2;

    /// <summary>Gets or sets the number of steps of associative actions. Group code 90.</summary>
    [CadInt(90)]
    public int StepCount { get; set; }

    /// <summary>Gets or sets the number of named parts. Group code 90.</summary>
    [CadInt(90)]
    public int SubentityCount { get; set; }

    /// <summary>Gets the indices of the steps. The list is live. Group code 90.</summary>
    [CadList(90, Count = 90)]
    public List<int> Steps { get; } = [];

    /// <summary>Gets the tags after the steps, which depend on the kind of the parts.</summary>
    internal List<CadCodeValue> Subentities { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Subentities);
}
