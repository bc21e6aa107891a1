using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The schemas and records of the data section of a drawing, in the order of the file.</summary>
[NamedObjects(typeof(CadBaseAcds), "data object")]
public partial class CadAcdsList : NonGenericList;
