using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The applications that attached data to a drawing.</summary>
[NamedObjects(typeof(CadAppIdTableObject), "application")]
public partial class CadAppIdDictionary : NonGenericDictionary;
