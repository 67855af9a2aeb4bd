கிழமை = "சனி"
match கிழமை:
    case "ஞாயிறு":
        print("விடுமுறை")
    case "சனி":
        print("அரை நாள்")
    case _:
        print("முழு நாள்")
