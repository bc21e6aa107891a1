using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A dependency or action that an associative action refers to.</summary>
[CadSequence]
[CadBits("B IsOwned", "ExchangeHandle()")]
public partial class AssocActionDependency
{
    /// <summary>Creates the object with its defaults.</summary>
    public AssocActionDependency()
    {
    }

    private const int OwnerCode = 360;
    private const int PointerCode = 330;

    /// <summary>Gets or sets whether the action owns the object. Group code 360 instead of 330.</summary>
    public bool IsOwned { get; set; }

    /// <summary>Gets or sets the handle of the object in hexadecimal. Group codes 330, 360.</summary>
    public string ObjectHandle { get; set; } = "0";

    partial void OnExchange(ObjectExchange fields)
    {
        IsOwned = fields.IsReading ? fields.Has(OwnerCode, 0, IsOwned) : fields.Has(OwnerCode, 0, IsOwned) && IsOwned;
        ObjectHandle = fields.Handle(
            IsOwned ? OwnerCode : PointerCode, IsOwned ? HandleRole.HardOwner : HandleRole.SoftPointer, ObjectHandle);
    }

    private void ExchangeHandle(BitExchange fields) =>
        ObjectHandle = fields.Handle(IsOwned ? HandleRole.HardOwner : HandleRole.SoftPointer, ObjectHandle);
}
