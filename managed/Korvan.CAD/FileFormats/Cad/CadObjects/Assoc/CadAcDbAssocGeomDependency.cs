using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A dependency of an associative action on a part of an entity: a face, an edge or a vertex.</summary>
[CadSequence]
[CadObject("ACDBASSOCGEOMDEPENDENCY", Subclass = "AcDbAssocGeomDependency")]
[CadBits("base", "BS GeometryVersion", "B IsEnabled", "ExchangeClass()", "ExchangeSubentity()")]
public partial class CadAcDbAssocGeomDependency : CadAcDbAssocDependency
{
    // The classes of identifiers by their numbers.
    private static readonly string[] Classes =
    [
        "", "AcDbAssocSingleEdgePersSubentId", "AcDbAssocSimplePersSubentId", "AcDbAssocEdgePersSubentId",
        "AcDbAssocIndexPersSubentId", "AcDbAssocAsmBasedEntityPersSubentId",
    ];

    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocGeomDependency()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int GeometryVersion { get; set; }

    /// <summary>Gets or sets whether the dependency is enabled. Group code 290.</summary>
    [CadBool(290)]
    public bool IsEnabled { get; set; } = true;

    /// <summary>Gets or sets the class of the identifier of the part. Group code 1.</summary>
    [CadString(1)]
    public string SubentityClass { get; set; } = "";

    /// <summary>Gets the tags of the identifier, whose form its class states.</summary>
    internal List<CadCodeValue> Subentity { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Subentity);

    // Up to release 2010 the class of the identifier is a string; afterwards it is a number, or a string if it has
    // none.
    private void ExchangeClass(BitExchange fields)
    {
        const int numbered = 2013;
        int number = System.Array.IndexOf(Classes, SubentityClass);
        bool hasNumber = number >= 0 || int.TryParse(SubentityClass, CultureInfo.InvariantCulture, out number);
        if (fields.Release < numbered || fields.Bit(!hasNumber))
        {
            SubentityClass = fields.Text(SubentityClass);
            return;
        }

        number = fields.BitLong(number);
        if (fields.IsReading)
        {
            SubentityClass = number >= 0 && number < Classes.Length ? Classes[number]
                : number.ToString(CultureInfo.InvariantCulture);
        }
    }

    // Some classes have a version and two numbers before the flag.
    private void ExchangeSubentity(BitExchange fields)
    {
        const int numbers = 3;
        const int integer = 90;
        const int flag = 290;
        bool hasNumbers = fields.IsReading ? fields.DataRemaining > 1 : Subentity.Count > numbers;
        for (int i = 0; i < numbers && hasNumbers; i++)
        {
            int before = fields.IsReading ? 0 : Integer(i);
            int value = i == 0 ? fields.BitShort(before) : fields.BitLong(before);
            Take(fields, integer, value);
        }

        bool isSet = !fields.IsReading && Subentity.Count > 0 && Integer(Subentity.Count - 1) != 0;
        Take(fields, flag, fields.Bit(isSet) ? 1 : 0);
    }

    private int Integer(int index) =>
        int.TryParse(Subentity[index].Value, CultureInfo.InvariantCulture, out int value) ? value : 0;

    private void Take(BitExchange fields, int code, int value)
    {
        if (fields.IsReading)
        {
            Subentity.Add(new CadCodeValue(code, value.ToString(CultureInfo.InvariantCulture)));
        }
    }
}
