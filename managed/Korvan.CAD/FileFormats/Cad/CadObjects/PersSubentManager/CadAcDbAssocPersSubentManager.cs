using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.PersSubentManager;

/// <summary>Names of faces, edges and vertices that associative actions refer to.</summary>
[CadSequence]
[CadObject("ACDBASSOCPERSSUBENTMANAGER", Subclass = "AcDbAssocPersSubentManager")]
[CadBits(
    "BL Version", "BL FirstReserved", "BL SecondReserved", "BL ThirdReserved", "BL StepCount", "BL SubentityCount",
    "BL[BL] Steps", "ExchangeSubentities()")]
public partial class CadAcDbAssocPersSubentManager : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocPersSubentManager()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 2;

    /// <summary>Gets or sets a value that is always 3. Group code 90.</summary>
    [CadInt(90)]
    internal int FirstReserved { get; set; } = 3;

    /// <summary>Gets or sets a value that is always 0. Group code 90.</summary>
    [CadInt(90)]
    internal int SecondReserved { get; set; }

    /// <summary>Gets or sets a value that is always 2. Group code 90.</summary>
    [CadInt(90)]
    internal int ThirdReserved { get; set; } = 2;

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

    // Integers up to the last bit.
    private void ExchangeSubentities(BitExchange fields)
    {
        const int integer = 90;
        const int flag = 290;
        if (!fields.IsReading)
        {
            Subentities.ForEach(tag => Write(fields, tag));
            return;
        }

        while (fields.DataRemaining > 1)
        {
            Subentities.Add(new CadCodeValue(integer, fields.BitLong(0).ToString(CultureInfo.InvariantCulture)));
        }

        Subentities.Add(new CadCodeValue(flag, fields.Bit(false) ? "1" : "0"));
    }

    private static void Write(BitExchange fields, CadCodeValue tag)
    {
        const int flag = 290;
        int value = int.TryParse(tag.Value, CultureInfo.InvariantCulture, out int number) ? number : 0;
        if (tag.Attribute == flag)
        {
            fields.Bit(value != 0);
        }
        else
        {
            fields.BitLong(value);
        }
    }
}
