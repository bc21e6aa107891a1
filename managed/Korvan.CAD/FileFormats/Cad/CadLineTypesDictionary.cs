using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The line types of a drawing.</summary>
[NamedObjects(typeof(CadLineTypeTableObject), "line type")]
public partial class CadLineTypesDictionary : NonGenericDictionary;
