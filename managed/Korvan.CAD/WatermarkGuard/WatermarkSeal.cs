using System;
using System.Buffers.Binary;
using System.Security.Cryptography;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.TimeProvision;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>A text and a time stamp, encrypted with a password: salt, nonce, authentication tag and
/// ciphertext.</summary>
internal sealed record WatermarkSeal(string Text, DateTime? Time)
{
    private const int SaltLength = 16;
    private const int NonceLength = 12;
    private const int TagLength = 16;
    private const int HeaderLength = SaltLength + NonceLength + TagLength;
    private const int TimeLength = 9;
    private const int Iterations = 100_000;
    private const int MaxTextLength = 1000;

    internal static byte[] Close(string text, string password, TimeProvisionType time)
    {
        byte[] encoded = Encoding.UTF8.GetBytes(text);
        if (encoded.Length is 0 or > MaxTextLength)
        {
            throw new ArgumentException(
                $"The text of a watermark has 1 to {MaxTextLength} bytes of UTF-8, not {encoded.Length}.");
        }

        OpenSsl.Require();
        byte[] plain = [.. TimeBytes(time), .. encoded];
        byte[] seal = new byte[HeaderLength + plain.Length];
        RandomNumberGenerator.Fill(seal.AsSpan(0, SaltLength + NonceLength));
        using AesGcm cipher = Cipher(seal, password);
        cipher.Encrypt(Nonce(seal), plain, seal.AsSpan(HeaderLength), seal.AsSpan(HeaderLength - TagLength, TagLength));
        return seal;
    }

    /// <summary>Decrypts the content; <see langword="null"/> if the password is wrong or the bytes were
    /// changed.</summary>
    internal static WatermarkSeal? Open(byte[] seal, string password)
    {
        if (seal.Length <= HeaderLength + TimeLength || seal.Length > HeaderLength + TimeLength + MaxTextLength)
        {
            return null;
        }

        OpenSsl.Require();
        byte[] plain = new byte[seal.Length - HeaderLength];
        using AesGcm cipher = Cipher(seal, password);
        try
        {
            ReadOnlySpan<byte> tag = seal.AsSpan(HeaderLength - TagLength, TagLength);
            cipher.Decrypt(Nonce(seal), seal.AsSpan(HeaderLength), tag, plain);
        }
        catch (AuthenticationTagMismatchException)
        {
            return null;
        }

        return new WatermarkSeal(Encoding.UTF8.GetString(plain, TimeLength, plain.Length - TimeLength), TimeOf(plain));
    }

    private static ReadOnlySpan<byte> Nonce(byte[] seal) => seal.AsSpan(SaltLength, NonceLength);

    private static AesGcm Cipher(byte[] seal, string password)
    {
        Verify.NotEmpty(password);
        byte[] key = Rfc2898DeriveBytes.Pbkdf2(
            password, seal.AsSpan(0, SaltLength), Iterations, HashAlgorithmName.SHA256, 32);
        return new AesGcm(key, TagLength);
    }

    private static byte[] TimeBytes(TimeProvisionType time)
    {
        byte[] bytes = new byte[TimeLength];
        bytes[0] = (byte)time;
        long ticks = time switch
        {
            TimeProvisionType.None => 0,
            TimeProvisionType.Utc => DateTime.UtcNow.Ticks,
            TimeProvisionType.Local => DateTime.Now.Ticks,
            _ => throw Verify.OutOfRange(nameof(time), time, "It has to be NONE, UTC or LOCAL."),
        };
        BinaryPrimitives.WriteInt64LittleEndian(bytes.AsSpan(1), ticks);
        return bytes;
    }

    private static DateTime? TimeOf(byte[] plain)
    {
        long ticks = BinaryPrimitives.ReadInt64LittleEndian(plain.AsSpan(1));
        bool isTime = ticks > 0 && ticks <= DateTime.MaxValue.Ticks;
        return (TimeProvisionType)plain[0] switch
        {
            TimeProvisionType.Utc when isTime => new DateTime(ticks, DateTimeKind.Utc),
            TimeProvisionType.Local when isTime => new DateTime(ticks, DateTimeKind.Local),
            _ => null,
        };
    }
}
