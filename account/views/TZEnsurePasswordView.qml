import Zorvane.Account

PasswordPage {
    required controller
}
